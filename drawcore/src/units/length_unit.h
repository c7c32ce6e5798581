// Units of length by name.
#pragma once

#include <string_view>

namespace drawcore {

struct LengthUnit {
    const char* name;   // as formatted
    double millimeters; // millimeters per unit
};

// Finds a unit by name or alternative spelling ("inches", a double quote), ignoring case. Returns null if there is
// none.
const LengthUnit* FindLengthUnit(std::string_view name);
// Finds a unit by DXF's number for insertion units. Returns null for no unit and for unsupported ones.
const LengthUnit* LengthUnitOfDxf(int number);

} // namespace drawcore
