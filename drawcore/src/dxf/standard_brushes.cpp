// Solid, six hatches and four bitmaps.
#include "drawcore/src/dxf/standard_brushes.h"

#include <cmath>

#include "drawcore/src/dxf/placement.h"

namespace dxf {

namespace {

// Returns lines one unit apart; angle in degrees.
Hatch::PatternLine Family(double angle) {
    return {angle, {}, {-std::sin(Radians(angle)), std::cos(Radians(angle)), 0}, {}};
}

} // namespace

const std::vector<StandardBrush>& StandardBrushes() {
    static const std::vector<StandardBrush> brushes = {{kSolidBrush, {}},
                                                       {"Horizontal", {Family(0)}},
                                                       {"Vertical", {Family(90)}},
                                                       {"Diagonal up", {Family(45)}},
                                                       {"Diagonal down", {Family(135)}},
                                                       {"Cross", {Family(0), Family(90)}},
                                                       {"Diagonal cross", {Family(45), Family(135)}},
                                                       {"Dots 25%", {}},
                                                       {"Dots 50%", {}},
                                                       {"Dots 75%", {}},
                                                       {"Brick bitmap", {}}};
    return brushes;
}

std::vector<Hatch::PatternLine> StandardLines(const std::string& name) {
    for (const StandardBrush& brush : StandardBrushes())
        if (brush.name == name) return brush.lines;
    return {};
}

} // namespace dxf
