// A bitmap in memory for drawing and reading pixels.
#pragma once

#include <functional>

#include "demo/viewer/memory_picture.h"

class Pixels {
public:
    Pixels(int width, int height); // filled with white

    HDC DC() const { return m_picture.Dc(); }
    void Clear(COLORREF color);
    COLORREF At(int x, int y) const;
    // Counts the pixels with that color in the rectangle.
    int Count(const RECT& rect, COLORREF color) const;
    int CountWhere(const RECT& rect, const std::function<bool(COLORREF)>& is) const;
    // Count the transitions to and from the color along a row or a column, to check dashes and frames.
    int ChangesAlongRow(int y, int left, int right, COLORREF color) const;

private:
    MemoryPicture m_picture;
};
