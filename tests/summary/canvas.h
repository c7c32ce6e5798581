// A white bitmap in memory to draw on, and what of it is covered afterwards.
#pragma once

#include <cstdint>
#include <optional>
#include <vector>
#include <windows.h>

struct MeanColour {
    double red, green, blue;
};

class Canvas {
public:
    Canvas(int width, int height);
    ~Canvas();
    Canvas(const Canvas&) = delete;
    Canvas& operator=(const Canvas&) = delete;

    HDC dc() const { return dc_; }
    RECT Whole() const { return {0, 0, width_, height_}; }
    void Clear();
    COLORREF Pixel(int x, int y) const;
    // The smallest rectangle around everything that isn't white, or nothing.
    std::optional<RECT> Covered() const;
    // The share of pixels in the rectangle that aren't white.
    double Coverage(const RECT& rect) const;
    MeanColour Mean(const RECT& rect) const;

private:
    int width_, height_;
    HDC dc_;
    HBITMAP bitmap_;
    HGDIOBJ before_;
    uint32_t* pixels_ = nullptr;
};

bool operator==(const RECT& a, const RECT& b);
