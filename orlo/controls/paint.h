// The few shapes that the owner-drawn controls share.
#pragma once

#include "orlo/win/gdi.h"

// Fills the rectangle (device pixels), brush and background colour of dc untouched.
void FillSolid(HDC dc, const RECT& rect, COLORREF color);

// Outline of the rectangle, not filled; width in device pixels.
void FrameRectangle(HDC dc, const RECT& rect, COLORREF color, int width);

// One line of text at a point, clipped.
void DrawClippedText(HDC dc, int x, int y, const RECT& clip, const char* text, COLORREF color);

// Black where it can be read on the window's colour, else the colour of the window's text.
COLORREF InkOnWindow();

RECT Inflated(const RECT& rect, int by);
