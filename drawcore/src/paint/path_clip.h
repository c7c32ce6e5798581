// Clips paths to a box, so that coordinates stay within the range of the device. Lines are divided, areas keep their
// interior.
#pragma once

#include "drawcore/src/geometry/path.h"

namespace drawcore {

struct Box {
    double left, top, right, bottom; // left < right, top < bottom

    bool Contains(const Point& p) const { return p.x >= left && p.x <= right && p.y >= top && p.y <= bottom; }
    Box Grown(double by) const { return {left - by, top - by, right + by, bottom + by}; }
};

enum class Where { Inside, Across, Outside, Undefined }; // Undefined: a coordinate is not a number

// Returns the position of all points of a path.
Where Locate(const Path& path, const Box& box);

// Returns the part of a segment inside the box as fractions of its length, or false if there is none.
bool ClipSegment(const Point& a, const Point& b, const Box& box, double& from, double& to);

void ClipLines(const Path& path, const Box& box, Path& clipped);
void ClipAreas(const Path& path, const Box& box, Path& clipped);

} // namespace drawcore
