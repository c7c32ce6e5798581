// Units of length by name.
#pragma once

#include <string_view>

namespace drawcore {

struct LengthUnit {
    const char* name;   // as it is written
    double millimeters; // that one of it has
};

// By name or another spelling of it ("inches", a double quote); case does not count. Null if there isn't one.
const LengthUnit* FindLengthUnit(std::string_view name);
// By DXF's number for units of an inserted drawing; null for none and for those that no drawing has here.
const LengthUnit* LengthUnitOfDxf(int number);

} // namespace drawcore
