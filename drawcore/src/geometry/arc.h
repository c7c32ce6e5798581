// Circles, arcs, ellipses and pieces of these: one formula, center + major * cos(t) + minor * sin(t). Any affine image
// of an arc is one.
#pragma once

#include <optional>
#include <vector>

#include "drawcore/src/geometry/matrix.h"

namespace drawcore {

struct EllipseArc {
    Vec3 center;
    Vec3 major{1, 0, 0};    // from the center to the point at t = 0
    Vec3 minor{0, 1, 0};    // to the point at t = a quarter turn
    double start = 0;       // radians of the parameter
    double sweep = 2 * kPi; // how far it runs from there; to the left where positive

    bool IsWhole() const;
    double End() const { return start + sweep; }
    Vec3 At(double t) const;
    EllipseArc Transformed(const Matrix& matrix) const;
};

EllipseArc CircleArc(const Vec3& center, double radius, double start = 0, double sweep = 2 * kPi);

// The way from start to end around a circle to the left, from 0 (excluded) to a whole turn.
double SweepBetween(double start, double end);

// The arc that a bulge (tangent of a quarter of the arc's angle, positive to the left) makes of the segment from a to
// b; none if it is straight.
std::optional<EllipseArc> ArcOfBulge(const Vec3& a, const Vec3& b, double bulge);

// Parameters within the arc, its ends left out, at which it goes farthest along x, y and, if asked for, z.
std::vector<double> Extremes(const EllipseArc& arc, bool inSpace);

} // namespace drawcore
