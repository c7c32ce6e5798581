// Converts a box of the device to one of the drawing.
#include "drawcore/src/paint/visible_members.h"

#include <cmath>

#include "drawcore/src/graphics/spatial_index.h"

namespace drawcore {

namespace {

// Returns whether boxes in the plane remain boxes and are scaled uniformly.
bool KeepsBoxes(const Matrix& m) {
    return m.KeepsAxes() && std::isnormal(m.at[0][0]) && std::fabs(m.at[0][0]) == std::fabs(m.at[1][1]);
}

Extents BackFrom(const Box& device, const Matrix& m) {
    Extents box;
    for (const Point& p : {Point{device.left, device.top}, {device.right, device.bottom}})
        box.Add(Vec3{(p.x - m.at[3][0]) / m.at[0][0], (p.y - m.at[3][1]) / m.at[1][1], 0});
    return box;
}

} // namespace

VisibleMembers::VisibleMembers(const Graphic& set, const Box& device, const Matrix& toDevice, double paperInch) {
    SpatialIndex* index = set.MemberIndex();
    if (!index || !KeepsBoxes(toDevice)) return;
    constexpr double kRounding = 1; // in pixels; greater than any rounding error
    indices_ = index->Find(set, BackFrom(device.Grown(kRounding), toDevice), paperInch / toDevice.PlanScale());
}

Graphic* VisibleMembers::At(const Graphic& set, size_t number) const {
    const size_t index = indices_ ? (*indices_)[number] : number;
    return index < set.MemberCount() ? set.MemberAt(index) : nullptr;
}

} // namespace drawcore
