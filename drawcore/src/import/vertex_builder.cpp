// Appends strokes, each from the end of the previous one.
#include "drawcore/src/import/vertex_builder.h"

#include <cmath>

namespace drawcore {

namespace {

bool IsCircle(const EllipseArc& arc) {
    const double u = Length(arc.major), v = Length(arc.minor);
    const double across = arc.major.x * arc.minor.x + arc.major.y * arc.minor.y;
    return std::fabs(u - v) <= 1e-9 * u && std::fabs(across) <= 1e-9 * u * v && std::fabs(arc.major.z) <= 1e-9 * u &&
           std::fabs(arc.minor.z) <= 1e-9 * v;
}

} // namespace

int StraightPieces(double sweep) {
    constexpr double kStep = kPi / 36;
    return static_cast<int>(std::ceil(std::fabs(sweep) / kStep)) + 1;
}

void VertexBuilder::MoveTo(Vec3 p) {
    vertices_.emplace_back(p, vertices_.empty());
}

void VertexBuilder::ArcTo(const EllipseArc& arc) {
    const bool circle = IsCircle(arc) && !vertices_.empty();
    // The bulge of a full turn is infinite; two halves have finite bulges.
    const int pieces = circle ? (std::fabs(arc.sweep) > kPi ? 2 : 1) : StraightPieces(arc.sweep);
    const bool mirrored = arc.major.x * arc.minor.y - arc.major.y * arc.minor.x < 0;
    const double bulge = circle ? std::tan(arc.sweep / pieces / 4) * (mirrored ? -1 : 1) : 0;
    for (int i = 1; i <= pieces; ++i) {
        if (circle) vertices_.back().SetNext({bulge, 0, 0});
        LineTo(arc.At(arc.start + arc.sweep * i / pieces));
    }
}

} // namespace drawcore
