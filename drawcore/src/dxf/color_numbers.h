// The 255 numbered colors of DXF, and what numbers and true colors stand for.
#pragma once

#include <cstdint>
#include <string>

#include "drawcore/src/dxf/entities.h"

namespace dxf {

constexpr int kColorNumbers = 255;

// 0x00bbggrr of a color number, 1 to 255; white for any other.
uint32_t ColorOfIndex(int index);
// "Red" to "White", then "Color 8" on.
std::string NameOfIndex(int index);
// The number whose color is nearest to 0x00bbggrr; 7 for white.
int NearestIndex(uint32_t color);

// What a color number (256 by layer, 0 by block) or true color (0xRRGGBB; -1: none) stands for: 0x00bbggrr or a marker
// of orlo/host/words.h.
uint32_t ColorOf(int index, int32_t trueColor);
// 0xRRGGBB of 0x00bbggrr.
int32_t TrueColorOf(uint32_t color);

} // namespace dxf
