// Draws a device-independent bitmap into memory without the system. Needs no window header.
//
//   const auto pixels = DrawDibFitted(data, size, 200, 150);   // centered on white, with its aspect ratio
//   // returns nothing for a bitmap that DrawDIB (thumbnail.h) rejects
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

#include "orlo/export.h"

namespace orlo {

// Draws the bitmap at data, of which size bytes may be read, on a white background of that size in pixels (at least
// 1x1). Returns red, green and blue of each pixel, from the top line down. Each target pixel is the mean of the source
// pixels that it covers.
ORLO_API std::optional<std::vector<uint8_t>> DrawDibFitted(const uint8_t* data, size_t size, int32_t width,
                                                           int32_t height);

// Returns the bitmap with the header that a .bmp file has before it, or nothing for a damaged one.
ORLO_API std::optional<std::vector<uint8_t>> BitmapFileFrom(const uint8_t* data, size_t size);

} // namespace orlo
