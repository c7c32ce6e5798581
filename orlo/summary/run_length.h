// Run-length data of a bitmap: every code lies inside the block, every pixel inside the picture, and the end is marked.
#pragma once

#include <cstddef>
#include <cstdint>

#include "orlo/summary/dib_layout.h"

namespace orlo {

// Pixels side by side, by their indices in the color table.
struct RunOfPixels {
    int64_t x, y; // of the first; lines are counted from the bottom
    uint32_t count;
    const uint8_t* codes; // a byte for each pixel, or for two under 4 bits
    bool isRepeated;      // the first byte for all of them
    bool isHalved;        // 4 bits

    uint8_t Index(uint32_t pixel) const {
        const uint8_t code = codes[isRepeated ? 0 : pixel / (isHalved ? 2 : 1)];
        return isHalved ? (pixel % 2 == 0 ? code >> 4 : code & 0xF) : code;
    }
};

// Hands each run to `paint`. False if the data isn't whole: then some have been painted.
template <typename Paint>
bool WalkRunLength(const uint8_t* data, size_t size, const DibLayout& layout, Paint paint) {
    constexpr uint8_t kEndOfLine = 0, kEndOfBitmap = 1, kDelta = 2;
    const bool isHalved = layout.bitsPerPixel == 4;
    int64_t x = 0, y = 0;
    const auto run = [&](uint32_t count, const uint8_t* codes, bool isRepeated) {
        if (y >= layout.height || x + count > layout.width) return false;
        paint(RunOfPixels{x, y, count, codes, isRepeated, isHalved});
        x += count;
        return true;
    };
    for (size_t at = 0; size - at >= 2;) {
        const uint8_t count = data[at], value = data[at + 1];
        at += 2;
        if (count != 0) {
            if (!run(count, data + at - 1, true)) return false;
        } else if (value == kEndOfBitmap) {
            return true;
        } else if (value == kEndOfLine) {
            x = 0;
            if (++y > layout.height) return false;
        } else if (value == kDelta) {
            if (size - at < 2) return false;
            x += data[at];
            y += data[at + 1];
            at += 2;
            if (x > layout.width || y > layout.height) return false;
        } else {
            const size_t bytes = isHalved ? (value + 1u) / 2 : value;
            const size_t padded = (bytes + 1) & ~size_t{1};
            if (size - at < padded || !run(value, data + at, false)) return false;
            at += padded;
        }
    }
    return false;
}

} // namespace orlo
