// The brush styles that every drawing has.
#pragma once

#include <string>
#include <vector>

#include "drawcore/src/dxf/look.h"

namespace dxf {

struct StandardBrush {
    std::string name;
    std::vector<Hatch::PatternLine> lines; // none: solid, or a bitmap
};

// Solid first, then plain hatches, then bitmaps.
const std::vector<StandardBrush>& StandardBrushes();
// Those of the style of that name; none for others.
std::vector<Hatch::PatternLine> StandardLines(const std::string& name);

} // namespace dxf
