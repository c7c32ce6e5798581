// Circles, ellipses and arcs of these, described by one formula: center + major * cos(t) + minor * sin(t). Any affine
// transformation of an arc is an arc.
#pragma once

#include <optional>
#include <vector>

#include "drawcore/src/geometry/matrix.h"

namespace drawcore {

struct EllipseArc {
    Vec3 center;
    Vec3 major{1, 0, 0};    // from the center to the point at t = 0
    Vec3 minor{0, 1, 0};    // to the point at t = pi / 2
    double start = 0;       // parameter in radians
    double sweep = 2 * kPi; // extent from there; positive is counterclockwise

    bool IsFullTurn() const;
    double End() const { return start + sweep; }
    Vec3 At(double t) const;
    EllipseArc Transformed(const Matrix& matrix) const;
};

EllipseArc CircleArc(const Vec3& center, double radius, double start = 0, double sweep = 2 * kPi);

// Returns the counterclockwise angle from start to end, greater than 0 and at most a full turn.
double SweepBetween(double start, double end);

// Returns the arc that a bulge (tangent of a quarter of the arc's angle, positive is counterclockwise) makes of the
// segment from a to b, or nothing if it is straight.
std::optional<EllipseArc> ArcOfBulge(const Vec3& a, const Vec3& b, double bulge);

// Returns the parameters inside the arc at which x, y and, with inSpace, z are extreme.
std::vector<double> Extremes(const EllipseArc& arc, bool inSpace);

} // namespace drawcore
