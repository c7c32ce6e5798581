// The host's application: the current drawing, its variables and palette, its configuration file.
#pragma once

#include "orlo/host/api.h"
#include "orlo/host/records.h"

// The application of this process. The host's; never null while a drawing is open.
DRAWCORE_API AppStruct* AppGetCurrentApp(void);

// Copies the path of the host's configuration file, at most size bytes with the NUL. 0 if there isn't one.
DRAWCORE_API int AppGetINIFileName(AppStruct*, char* buffer, int size);

// Non-zero if the device takes a palette.
DRAWCORE_API int IsPaletteSupported(HDC);
