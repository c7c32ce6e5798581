// Lines cut into the dashes of a pattern. Done here, not by the device: its patterns count in whole pixels, start anew
// with each call and have no dots.
#pragma once

#include "drawcore/src/geometry/path.h"
#include "drawcore/src/paint/path_clip.h"

namespace drawcore {

struct DashPattern {
    const std::vector<double>& items; // positive a dash, negative a gap, 0 a dot
    double scale;                     // path units per unit of the items
    // Each segment between two corners begins and ends with a dash of at least half a length, and one too short for the
    // pattern is drawn through. Otherwise the pattern begins with each polyline and runs on through its corners.
    bool fit;
};

// Whether the pattern shows at all: it has a gap and is not finer than least (path units).
bool ShowsDashes(const DashPattern& pattern, double least);

// The dashes of the path that lie in the box; a dot is a polyline of one point.
void CutDashes(const Path& path, const DashPattern& pattern, const Box& box, Path& dashes);

} // namespace drawcore
