// A white picture to draw on, and what of it is covered afterwards.
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "support/pixels.h"

struct MeanColor {
    double red, green, blue;
};

class Canvas : public Pixels {
public:
    Canvas(int width, int height);

    RECT Whole() const { return {0, 0, width_, height_}; }
    // Red, green and blue of every pixel, line by line from the top.
    void Fill(const std::vector<uint8_t>& colors);
    void Whiten() { Clear(RGB(255, 255, 255)); }
    // The smallest rectangle around everything that isn't white, or nothing.
    std::optional<RECT> Covered() const;
    // The share of pixels that aren't white.
    double Coverage() const;
    MeanColor Mean() const;

private:
    int width_, height_;
};

bool operator==(const RECT& a, const RECT& b);
