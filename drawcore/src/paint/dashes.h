// Divides lines into dashes. Device patterns are not suitable: they use whole pixels, restart with each call and have
// no dots.
#pragma once

#include "drawcore/src/geometry/path.h"
#include "drawcore/src/paint/path_clip.h"

namespace drawcore {

struct DashPattern {
    const std::vector<double>& items; // positive: dash, negative: gap, 0: dot
    double scale;                     // path units per pattern unit
    // Each segment between two corners begins and ends with a dash of at least half its length, and is solid if it is
    // too short for the pattern. Otherwise the pattern begins with each polyline and continues around its corners.
    bool fit;
};

// Returns whether the pattern is visible: it has a gap and its period is at least `least` (path units).
bool ShowsDashes(const DashPattern& pattern, double least);

// Adds the dashes of the path inside the box; a dot is a polyline of one point.
void CutDashes(const Path& path, const DashPattern& pattern, const Box& box, Path& dashes);

} // namespace drawcore
