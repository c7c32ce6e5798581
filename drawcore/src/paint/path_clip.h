// Cutting paths to a box, so that numbers stay within what the device takes. Lines go to pieces, areas keep their
// inside.
#pragma once

#include "drawcore/src/geometry/path.h"

namespace drawcore {

struct Box {
    double left, top, right, bottom; // left < right, top < bottom

    bool Holds(const Point& p) const { return p.x >= left && p.x <= right && p.y >= top && p.y <= bottom; }
    Box Grown(double by) const { return {left - by, top - by, right + by, bottom + by}; }
};

enum class Where { Inside, Across, Outside, Nowhere }; // Nowhere: some coordinate is not a number

// Where the points of a path lie, taken together.
Where Locate(const Path& path, const Box& box);

// The part of a segment in the box as shares of its length; false if there isn't one.
bool ClipSegment(const Point& a, const Point& b, const Box& box, double& from, double& to);

void ClipLines(const Path& path, const Box& box, Path& clipped);
void ClipAreas(const Path& path, const Box& box, Path& clipped);

} // namespace drawcore
