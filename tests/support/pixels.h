// A picture in memory to draw into and to look at pixel by pixel.
#pragma once

#include <functional>

#include "demo/viewer/memory_picture.h"

class Pixels {
public:
    Pixels(int width, int height); // white

    HDC DC() const { return m_picture.Dc(); }
    void Clear(COLORREF color);
    COLORREF At(int x, int y) const;
    // Pixels of the rectangle that are of that color.
    int Count(const RECT& rect, COLORREF color) const;
    int CountWhere(const RECT& rect, const std::function<bool(COLORREF)>& is) const;
    // Changes of "is of that color" along a row or a column, a measure for dashes and frames.
    int ChangesAlongRow(int y, int left, int right, COLORREF color) const;

private:
    MemoryPicture m_picture;
};
