// The application: the current drawing, its variables and palette, its configuration file.
#pragma once

#include "orlo/host/api.h"
#include "orlo/host/records.h"

// Returns the application of this process. It belongs to the host. Never null while a drawing is open.
DRAWCORE_API AppStruct* AppGetCurrentApp(void);

// Copies the path of the host's configuration file, at most size bytes including the NUL. Returns 0 if there is none.
DRAWCORE_API int AppGetINIFileName(AppStruct* application, char* buffer, int size);

// Returns non-zero if the device has a palette.
DRAWCORE_API int IsPaletteSupported(HDC dc);
