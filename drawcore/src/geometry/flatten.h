// Approximates curves by line segments.
#pragma once

#include "drawcore/src/geometry/arc.h"
#include "drawcore/src/geometry/path.h"
#include "drawcore/src/geometry/spline.h"

namespace drawcore {

// Adds the arc from its start (excluded) to its end, which is a corner. All steps are within tolerance of the curve,
// and the leftmost, rightmost, top and bottom points are included.
void FlattenArc(const EllipseArc& arc, const Matrix& matrix, double tolerance, Path& path);
// Returns the points that a spline is drawn by if no tolerance is given; for an invalid spline, its control points.
std::vector<Vec3> SplineChain(const SplineCurve& curve);
// Adds a valid spline from its start (excluded).
void FlattenSpline(const SplineCurve& curve, const Matrix& matrix, double tolerance, Path& path);

} // namespace drawcore
