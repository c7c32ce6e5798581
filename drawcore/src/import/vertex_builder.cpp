#include "drawcore/src/import/vertex_builder.h"

#include <cmath>

namespace drawcore {

namespace {

bool IsCircle(const dxf::EllipseArc& arc) {
    const double u = dxf::Length(arc.u), v = dxf::Length(arc.v);
    const double across = arc.u.x * arc.v.x + arc.u.y * arc.v.y;
    return std::fabs(u - v) <= 1e-9 * u && std::fabs(across) <= 1e-9 * u * v &&
           std::fabs(arc.u.z) <= 1e-9 * u && std::fabs(arc.v.z) <= 1e-9 * v;
}

} // namespace

int StraightPieces(double sweep) {
    constexpr double kStep = dxf::kPi / 36;
    return static_cast<int>(std::ceil(std::fabs(sweep) / kStep)) + 1;
}

void VertexBuilder::MoveTo(dxf::Point p) {
    vertices_.emplace_back(FromDxf(p), vertices_.empty());
}

void VertexBuilder::ArcTo(const dxf::EllipseArc& arc) {
    const bool circle = IsCircle(arc) && !vertices_.empty();
    // A bulge grows without end towards a full turn: two halves are good numbers.
    const int pieces = circle ? (std::fabs(arc.sweep) > dxf::kPi ? 2 : 1) : StraightPieces(arc.sweep);
    const bool mirrored = arc.u.x * arc.v.y - arc.u.y * arc.v.x < 0;
    const double bulge = circle ? std::tan(arc.sweep / pieces / 4) * (mirrored ? -1 : 1) : 0;
    for (int i = 1; i <= pieces; ++i) {
        if (circle) vertices_.back().bulge = bulge;
        LineTo(arc.At(arc.start + arc.sweep * i / pieces));
    }
}

} // namespace drawcore
