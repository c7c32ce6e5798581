// The 255 numbered colors of DXF, and the conversion of numbers and true colors.
#pragma once

#include <cstdint>
#include <string>

#include "drawcore/src/dxf/entities.h"

namespace dxf {

constexpr int kColorNumbers = 255;

// Returns 0x00bbggrr for a color number from 1 to 255, white for others.
uint32_t ColorOfIndex(int index);
// Returns "Red" to "White", then "Color 8" on.
std::string NameOfIndex(int index);
// Returns the number of the color nearest to 0x00bbggrr; 7 for white.
int NearestIndex(uint32_t color);

// Converts a color number (256 by layer, 0 by block) or true color (0xRRGGBB; -1 for none) to 0x00bbggrr or a marker of
// orlo/host/words.h.
uint32_t ColorOf(int index, int32_t trueColor);
// Converts 0x00bbggrr to 0xRRGGBB.
int32_t TrueColorOf(uint32_t color);

} // namespace dxf
