// Lengths as text. Reading: "2.5", "2.5 mm", "-3 1/2 in", "1/4\"", "1'-6 1/2\"", blanks around it; the text is read whole or
// refused. Writing: decimal.
#pragma once

#include <string>
#include <string_view>

#include "drawcore/src/units/length_unit.h"

namespace drawcore {

// Millimetres of the text; a number without a unit is in the given one. False, and value left alone, if it is no length.
bool ReadLength(std::string_view text, const LengthUnit& bare, double& millimetres);

// Empty if the length is no number. suffix: the unit's name follows after a blank.
std::string WriteLength(double millimetres, const LengthUnit& unit, int decimals, bool suffix);

} // namespace drawcore
