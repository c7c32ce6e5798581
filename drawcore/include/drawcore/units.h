// Units of a drawing: variables of its table "_Units_", for host programs. Conversions are in orlo/host/units.h.
#pragma once

#include <cstdint>

// Strings: names of units ("mm", "cm", "m", "in", "ft", "pt", ...), case does not count.
constexpr uint16_t kUnitDrawing = 0x5033; // of the lengths in the drawing; what a number without a unit means
constexpr uint16_t kUnitMillimetre = 0x5034; // always "mm"
// 0x5035 text sizes and 0x5036 pen widths on paper, 0x50BC the current font: orlo/host/units.h.

// Whole numbers: how lengths in drawing units and angles are written. Every form is read, whatever is written.
// 1 scientific, 2 decimal, 3 engineering (feet and decimal inches), 4 architectural (feet, inches and fractions), 5 fractional
constexpr uint16_t kUnitLinearSystem = 0x5040;
// Digits behind the decimal mark that a length shows, 0 to 12; of a fraction the power of two of its denominator.
constexpr uint16_t kUnitLinearDigits = 0x5041;
// 0 degrees, 1 degrees, minutes and seconds, 2 grads, 3 radians, 4 bearings (from north or south to east or west)
constexpr uint16_t kUnitAngularSystem = 0x5042;
// Digits behind the decimal mark that an angle shows, 0 to 12. In the systems 1 and 4: 0 for degrees, 1 and 2 with minutes,
// 3 and 4 with seconds, and each one more a digit of the seconds.
constexpr uint16_t kUnitAngularDigits = 0x5043;
