// Shapes shared by the owner-drawn controls.
#pragma once

#include "orlo/win/gdi.h"

// Fills the rectangle (device pixels). Leaves the brush and background color of dc unchanged.
void FillSolid(HDC dc, const RECT& rect, COLORREF color);

// Draws the outline of the rectangle; width is in device pixels.
void FrameRectangle(HDC dc, const RECT& rect, COLORREF color, int width);

// Draws one line of text at a point, clipped.
void DrawClippedText(HDC dc, int x, int y, const RECT& clip, const char* text, COLORREF color);

// Returns the y coordinate at which one line of text is vertically centered in the row, at least `least` below its top.
int CenteredTextTop(HDC dc, const RECT& row, int least);

// Returns the contrast ratio of two colors by relative luminance, from 1 to 21.
double Contrast(COLORREF a, COLORREF b);
// Text with a lower contrast ratio is hard to read.
constexpr double kReadableContrast = 3.0;

// Returns black if it is readable on the window's color, else the color of window text.
COLORREF TextColorOnWindow();

RECT Inflated(const RECT& rect, int by);
