// Sizes at the resolution of the screen and in the font of a dialog.
#pragma once

#include <windows.h>

// Converts a size in pixels at 96 dpi to pixels of the screen, rounded.
int ScreenPixels(int at96);
// Does the same for a device context of the screen; faster if one exists.
int ScreenPixels(HDC dc, int at96);
// Returns the height to create a font of that size with.
int FontHeight(HDC dc, int points);
// Returns the average width of the letters of the selected font, by the system's formula for dialog units.
int AverageLetterWidth(HDC dc);
