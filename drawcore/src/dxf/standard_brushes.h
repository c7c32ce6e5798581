// The brush styles that every drawing has.
#pragma once

#include <string>
#include <vector>

#include "drawcore/src/dxf/appearance.h"

namespace dxf {

struct StandardBrush {
    std::string name;
    std::vector<Hatch::PatternLine> lines; // empty for solid and bitmaps
};

// Returns the solid style, the hatches, and the bitmaps.
const std::vector<StandardBrush>& StandardBrushes();
// Returns the lines of the style with that name, or none.
std::vector<Hatch::PatternLine> StandardLines(const std::string& name);

} // namespace dxf
