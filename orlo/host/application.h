// The application: the current drawing, its variables and palette, its configuration file.
#pragma once

#include "orlo/host/api.h"
#include "orlo/host/records.h"

// Returns the application object of this process, which the host owns. Must not return null while a drawing is open.
// Called: by pages, and when colors and previews are drawn.
// Failure: null: lists are empty, and previews are black.
DRAWCORE_API AppStruct* AppGetCurrentApp(void);

// Copies the full path of the host's configuration file, at most size bytes including the NUL. Returns 0 if the host
// has no such file.
// Called: when the Pen and Text pages fill their lists.
// Stub: return 0. Lost: the lists of common widths and heights; users must type the values.
// Failure: 0: the list is empty.
DRAWCORE_API int AppGetINIFileName(AppStruct* application, char* buffer, int size);

// Returns non-zero if the device has a palette.
// Called: when colors and previews are drawn.
// Stub: return 0. Lost: exact colors on a device with a palette.
DRAWCORE_API int IsPaletteSupported(HDC dc);
