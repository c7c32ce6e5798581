// Lengths as text.
//
// Reading: "2.5", "2.5 mm", "-3 1/2 in", "1/4\"", "1'-6 1/2\"", blanks around it, and calculations with them
// (calculation.h). A minus counts for the whole length; the text is read in full or refused. Every form is read,
// whatever form the drawing writes.
#pragma once

#include <string>
#include <string_view>

#include "drawcore/src/units/length_unit.h"

namespace drawcore {

// As DXF numbers them.
enum class LengthSystem { Scientific = 1, Decimal, Engineering, Architectural, Fractional };

// How a length is written.
struct LengthFormat {
    LengthSystem system = LengthSystem::Decimal;
    // Digits after the decimal mark; of a fraction the power of two of its denominator (4: sixteenths).
    int digits = 4;
    bool suffix = false; // the unit's name follows after a blank, where the form has no marks of its own
};

// Millimeters of the text; a number without a unit is in the given one. False, and value left alone, if it is not a
// length.
bool ReadLength(std::string_view text, const LengthUnit& bare, double& millimeters);

// Empty if the length is not a number. Feet and inches (engineering, architectural) are true ones, whatever the unit
// is. A length that has no place in its form, because it is too large or a fraction would make nothing of it, is
// written as a decimal.
std::string WriteLength(double millimeters, const LengthUnit& unit, const LengthFormat& format);

} // namespace drawcore
