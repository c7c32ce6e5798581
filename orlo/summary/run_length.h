// Decodes and checks the run-length data of a bitmap: all codes must be inside the block, all pixels inside the
// picture, and the end must be marked.
#pragma once

#include <cstddef>
#include <cstdint>

#include "orlo/summary/dib_layout.h"

namespace orlo {

// Adjacent pixels, by their indices in the color table.
struct RunOfPixels {
    int64_t x, y; // of the first pixel; lines are counted from the bottom
    uint32_t count;
    const uint8_t* codes; // one byte per pixel, or per two pixels for 4 bits
    bool isRepeated;      // the first byte applies to all pixels
    bool isHalved;        // 4 bits per pixel

    uint8_t Index(uint32_t pixel) const {
        const uint8_t code = codes[isRepeated ? 0 : pixel / (isHalved ? 2 : 1)];
        return isHalved ? (pixel % 2 == 0 ? code >> 4 : code & 0xF) : code;
    }
};

// Passes each run to `paint`. Returns false if the data is incomplete or invalid; some runs may have been painted.
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
    for (size_t at = 0; size - at >= 2 && x <= layout.width && y <= layout.height;) {
        const uint8_t count = data[at], value = data[at + 1];
        at += 2;
        if (count != 0) {
            if (!run(count, data + at - 1, true)) return false;
        } else if (value == kEndOfBitmap) {
            return true;
        } else if (value == kEndOfLine) {
            x = 0;
            ++y;
        } else if (value == kDelta) {
            if (size - at < 2) return false;
            x += data[at];
            y += data[at + 1];
            at += 2;
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
