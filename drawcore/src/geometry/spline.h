// Splines: rational B-splines by degree, knots, control points and weights.
#pragma once

#include <vector>

#include "drawcore/src/geometry/vector.h"

namespace drawcore {

struct SplineCurve {
    int degree = 3;
    std::vector<double> knots;   // points + degree + 1 of them, never falling
    std::vector<Vec3> points;    // control points
    std::vector<double> weights; // empty: all 1

    // Whether the counts fit, knots do not fall, all numbers are finite and weights are above 0.
    bool IsSound() const;
    Vec3 At(double t) const; // t between knots[degree] and knots[points]
};

// A spline that runs through these points with continuous curvature: for files that give nothing else. closed: the last
// point is joined to the first as smoothly as the others.
SplineCurve SplineThrough(const std::vector<Vec3>& fitPoints, bool closed);

} // namespace drawcore
