// Units of a drawing: variables of its table kTableUnits. Functions that convert are in orlo/host/units.h.
#pragma once

#include "orlo/host/words.h"

// kUnitDrawing, kUnitMillimeter, kUnitTextSize and kUnitPenWidth (orlo/host/words.h) are strings: names of units ("mm",
// "cm", "m", "in", "ft", "pt", ...) in upper or lower case.

// The following variables are integers. They define how lengths in drawing units and angles are written. Texts in all
// formats can be parsed.

// Format of lengths: 1 scientific, 2 decimal, 3 engineering (feet and decimal inches), 4 architectural (feet, inches
// and fractions), 5 fractional.
ORLO_CONSTANT uint16_t kUnitLinearSystem = 0x5040;
// Decimal places of lengths, 0 to 12. For fractions: the denominator as a power of two.
ORLO_CONSTANT uint16_t kUnitLinearDigits = 0x5041;
// Format of angles: 0 degrees; 1 degrees, minutes and seconds; 2 grads; 3 radians; 4 bearings (from north or south to
// east or west).
ORLO_CONSTANT uint16_t kUnitAngularSystem = 0x5042;
// Decimal places of angles, 0 to 12. For the formats 1 and 4: 0 is degrees only, 1 and 2 add minutes, 3 and 4 add
// seconds, and each further one adds a decimal place to the seconds.
ORLO_CONSTANT uint16_t kUnitAngularDigits = 0x5043;
