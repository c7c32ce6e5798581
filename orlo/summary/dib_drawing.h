// Draws a device-independent bitmap into memory without the system. Needs no window header.
//
//   const auto pixels = DrawDibFitted(data, size, 200, 150);   // in the middle of white, proportions kept
//   a bitmap that DrawDIB (thumbnail.h) refuses: nothing
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

#include "orlo/export.h"

namespace orlo {

// The bitmap at data, of which size bytes may be read, in a white picture of that size in pixels (from 1x1 on): red,
// green and blue of each pixel, line by line from the top. A smaller picture has the mean of the pixels that each of
// its own covers.
ORLO_API std::optional<std::vector<uint8_t>> DrawDibFitted(const uint8_t* data, size_t size, int32_t width,
                                                           int32_t height);

} // namespace orlo
