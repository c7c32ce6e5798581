// Extends a box, and transforms it.
#include "drawcore/src/geometry/extents.h"

#include <algorithm>

namespace drawcore {

void Extents::Add(const Vec3& point) {
    if (!IsFinite(point)) return;
    low = {std::min(low.x, point.x), std::min(low.y, point.y), std::min(low.z, point.z)};
    high = {std::max(high.x, point.x), std::max(high.y, point.y), std::max(high.z, point.z)};
}

void Extents::Add(const Extents& other) {
    if (other.IsEmpty()) return;
    Add(other.low);
    Add(other.high);
}

void Extents::Add(const EllipseArc& arc) {
    Add(arc.At(arc.start));
    Add(arc.At(arc.End()));
    for (const double t : Extremes(arc, true))
        Add(arc.At(t));
}

bool Extents::Covers(const Extents& other) const {
    return other.IsEmpty() ||
           (low.x <= other.low.x && low.y <= other.low.y && other.high.x <= high.x && other.high.y <= high.y);
}

Extents Extents::Transformed(const Matrix& matrix) const {
    Extents box;
    if (IsEmpty()) return box;
    if (matrix.KeepsAxes()) { // the usual case while a drawing is drawn
        box.Add(matrix.Apply(low));
        box.Add(matrix.Apply(high));
        return box;
    }
    for (int corner = 0; corner < 8; ++corner)
        box.Add(matrix.Apply({corner & 1 ? high.x : low.x, corner & 2 ? high.y : low.y, corner & 4 ? high.z : low.z}));
    return box;
}

} // namespace drawcore
