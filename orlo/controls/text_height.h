// Height of a line of text in an owner-drawn control.
#pragma once

#include <windows.h>

#include "orlo/export.h"

// Height of "M" in device pixels, in the font that a device context of the window has by default; 16 without
// one.
ORLO_API int GetOwnerDrawFixedTextHeight(HWND hWnd);

// The same in the font that is selected in a device context.
int TextHeight(HDC dc);
// Width of the text in that font.
int TextWidth(HDC dc, const char* text);

// The same in the font that was given to the window (WM_SETFONT); 0 without one.
int ControlFontHeight(HWND window);
