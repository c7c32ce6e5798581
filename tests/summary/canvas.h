// A white bitmap to draw on, which reports the pixels that were drawn.
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
    // Sets red, green and blue of every pixel, from the top line down.
    void Fill(const std::vector<uint8_t>& colors);
    void Whiten() { Clear(RGB(255, 255, 255)); }
    // Returns the smallest rectangle around all pixels that are not white, or nothing.
    std::optional<RECT> Covered() const;
    // Returns the share of pixels that are not white.
    double Coverage() const;
    MeanColor Mean() const;

private:
    int width_, height_;
};

bool operator==(const RECT& a, const RECT& b);
