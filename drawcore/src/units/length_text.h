// Parses and formats lengths.
//
// Accepts "2.5", "2.5 mm", "-3 1/2 in", "1/4\"", "1'-6 1/2\"", surrounded by blanks, and calculations with them
// (calculation.h). A minus sign applies to the whole length. Text is accepted or rejected as a whole. All formats are
// accepted, regardless of the drawing's format.
#pragma once

#include <string>
#include <string_view>

#include "drawcore/src/units/length_unit.h"

namespace drawcore {

// With the numbers of DXF.
enum class LengthSystem { Scientific = 1, Decimal, Engineering, Architectural, Fractional };

// The format of lengths.
struct LengthFormat {
    LengthSystem system = LengthSystem::Decimal;
    // Number of decimal places; for fractions, the denominator as a power of two (4: sixteenths).
    int digits = 4;
    bool suffix = false; // append the unit's name after a blank if the format has no unit signs
};

// Parses a length and converts it to millimeters. A number without a unit is in the default unit. Returns false and
// leaves millimeters unchanged if the text is not a length.
bool ReadLength(std::string_view text, const LengthUnit& defaultUnit, double& millimeters);

// Formats a length. Returns an empty string if it is not a number. Feet and inches (engineering, architectural) are
// independent of the unit. A length that is too large for its format, or too small for a fraction, is formatted as a
// decimal.
std::string WriteLength(double millimeters, const LengthUnit& unit, const LengthFormat& format);

} // namespace drawcore
