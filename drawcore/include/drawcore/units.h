// Units of a drawing: variables of its table "_Units_", for host programs. Conversions are in orlo/host/units.h.
#pragma once

#include "orlo/host/words.h"

// kUnitDrawing, kUnitMillimeter, kUnitTextSize and kUnitPenWidth (orlo/host/words.h) are strings, names of units ("mm", "cm",
// "m", "in", "ft", "pt", ...), whose case does not count.

// Whole numbers: how lengths in drawing units and angles are written. Every form is read, whatever is written.
// 1 scientific, 2 decimal, 3 engineering (feet and decimal inches), 4 architectural (feet, inches and fractions), 5 fractional
constexpr uint16_t kUnitLinearSystem = 0x5040;
// Digits after the decimal mark that a length shows, 0 to 12; of a fraction the power of two of its denominator.
constexpr uint16_t kUnitLinearDigits = 0x5041;
// 0 degrees, 1 degrees, minutes and seconds, 2 grads, 3 radians, 4 bearings (from north or south to east or west)
constexpr uint16_t kUnitAngularSystem = 0x5042;
// Digits after the decimal mark that an angle shows, 0 to 12. In the systems 1 and 4: 0 for degrees, 1 and 2 with minutes,
// 3 and 4 with seconds, and each one more a digit of the seconds.
constexpr uint16_t kUnitAngularDigits = 0x5043;
