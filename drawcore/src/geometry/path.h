// Two-dimensional polylines in one coordinate system.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "drawcore/src/geometry/matrix.h"

namespace drawcore {

class Path {
public:
    void Clear() {
        points.clear();
        corners.clear();
        starts.clear();
    }
    void MoveTo(Point p) {
        starts.push_back(points.size());
        Append(p, true);
    }
    // corner: the end of a segment of the graphic rather than a step of a flattened curve.
    void LineTo(Point p, bool corner = true) { Append(p, corner); }

    size_t Count() const { return starts.size(); }
    // Polyline i has the points from points[Begin(i)] up to, but not including, points[End(i)].
    size_t Begin(size_t i) const { return starts[i]; }
    size_t End(size_t i) const { return i + 1 < starts.size() ? starts[i + 1] : points.size(); }

    std::vector<Point> points;
    std::vector<uint8_t> corners;
    std::vector<size_t> starts;

private:
    void Append(Point p, bool corner) {
        points.push_back(p);
        corners.push_back(corner);
    }
};

} // namespace drawcore
