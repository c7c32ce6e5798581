// Units of a drawing: variables of its table "_Units_", for host programs. Conversions are in orlo/host/units.h.
#pragma once

#include <cstdint>

// Strings: names of units ("mm", "cm", "m", "in", "ft", "pt", ...), case does not count.
constexpr uint16_t kUnitDrawing = 0x5033; // of the lengths in the drawing; what a number without a unit means
constexpr uint16_t kUnitMillimetre = 0x5034; // always "mm"
// 0x5035 text sizes and 0x5036 pen widths on paper: orlo/host/units.h.

// Whole numbers.
constexpr uint16_t kUnitLinearDigits = 0x5041; // digits behind the decimal mark that a length shows, 0 to 12
