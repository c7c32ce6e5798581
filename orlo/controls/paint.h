// The few shapes that the owner-drawn controls share.
#pragma once

#include "orlo/win/gdi.h"

// Fills the rectangle (device pixels), brush and background color of dc untouched.
void FillSolid(HDC dc, const RECT& rect, COLORREF color);

// Outline of the rectangle, not filled; width in device pixels.
void FrameRectangle(HDC dc, const RECT& rect, COLORREF color, int width);

// One line of text at a point, clipped.
void DrawClippedText(HDC dc, int x, int y, const RECT& clip, const char* text, COLORREF color);

// The contrast of two colors by their relative luminance, from 1 to 21.
double Contrast(COLORREF a, COLORREF b);
// Text of less contrast to its background than this is hard to read.
constexpr double kReadableContrast = 3.0;

// Black where it can be read on the window's color, else the color of the window's text.
COLORREF InkOnWindow();

RECT Inflated(const RECT& rect, int by);
