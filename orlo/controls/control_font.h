// Fonts of the library's controls: the font that they share, and the height of text.
#pragma once

#include <windows.h>

#include "orlo/export.h"

// Returns the height in device pixels of "M" in the default font of the window's device context, or 16 if there is no
// device context.
ORLO_API int GetOwnerDrawFixedTextHeight(HWND hWnd);

// The rest is internal to the library.

// Returns the height of "M" in the font that is selected in a device context.
int TextHeight(HDC dc);
// Returns the width of the text in that font.
int TextWidth(HDC dc, const char* text);

// Returns GetOwnerDrawFixedTextHeight, or the height of "M" in the font of WM_SETFONT if that is larger, as it is at
// high resolutions.
int ControlTextHeight(HWND window);

// Returns the shared font, creating it at the first call. Returns null if it cannot be created; the next call tries
// again.
HFONT SharedControlFont();

// Releases the shared font at process detach.
void ReleaseSharedFont();
