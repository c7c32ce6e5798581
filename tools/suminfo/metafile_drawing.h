// Draws a summary's picture that the system has to play.
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "commands.h"

namespace suminfo {

// The value of a thumbnail property, in the middle of a white picture: red, green and blue of each pixel, line by line
// from the top. Nothing if it is damaged; Failure if the system has no room.
std::optional<std::vector<uint8_t>> DrawMetafile(const orlo::Bytes& value, Extent extent);

} // namespace suminfo
