// Rational B-splines: degree, knots, control points and weights.
#pragma once

#include <vector>

#include "drawcore/src/geometry/vector.h"

namespace drawcore {

struct SplineCurve {
    int degree = 3;
    std::vector<double> knots;   // points + degree + 1 of them, ascending
    std::vector<Vec3> points;    // control points
    std::vector<double> weights; // empty if all are 1

    // Returns whether the counts are consistent, knots ascend, all numbers are finite and weights are positive.
    bool IsValid() const;
    Vec3 At(double t) const; // t must be between knots[degree] and knots[points].
};

// Returns a spline through the points with continuous curvature, for files without control points. closed: the last
// point is connected smoothly to the first.
SplineCurve SplineThrough(const std::vector<Vec3>& fitPoints, bool closed);

} // namespace drawcore
