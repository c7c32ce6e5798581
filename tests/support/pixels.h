// A picture in memory to draw into and to look at pixel by pixel.
#pragma once

#include <windows.h>

#include <functional>

class Pixels {
public:
    Pixels(int width, int height);
    ~Pixels();
    Pixels(const Pixels&) = delete;
    Pixels& operator=(const Pixels&) = delete;

    HDC DC() const { return m_dc; }
    void Clear(COLORREF color);
    COLORREF At(int x, int y) const;
    // Pixels of the rectangle that are of that colour.
    int Count(const RECT& rect, COLORREF color) const;
    int CountWhere(const RECT& rect, const std::function<bool(COLORREF)>& is) const;
    // Changes of "is of that colour" along a row or a column, a measure for dashes and frames.
    int ChangesAlongRow(int y, int left, int right, COLORREF color) const;

private:
    int m_width, m_height;
    HDC m_dc;
    HBITMAP m_bitmap;
    HGDIOBJ m_before;
    const DWORD* m_bits;
};
