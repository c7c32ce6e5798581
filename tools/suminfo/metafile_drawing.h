// Draws a thumbnail that only the system can play.
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "commands.h"

namespace suminfo {

// Draws the value of a thumbnail property centered on white. Returns red, green and blue of each pixel, from the top
// line down, or nothing if the value is damaged. Throws Failure if the system cannot create the bitmap.
std::optional<std::vector<uint8_t>> DrawMetafile(const orlo::Bytes& value, Extent extent);

} // namespace suminfo
