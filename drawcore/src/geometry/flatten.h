// Curves as short straight pieces.
#pragma once

#include "drawcore/src/geometry/arc.h"
#include "drawcore/src/geometry/path.h"
#include "drawcore/src/geometry/spline.h"

namespace drawcore {

// Adds the arc after its start up to its end, the end as a corner. The steps stay within tolerance of the curve, and
// the points farthest left, right, up and down are among them.
void FlattenArc(const EllipseArc& arc, const Matrix& matrix, double tolerance, Path& path);
// The points of a spline as it is drawn where no tolerance is given: of an unsound one the control points.
std::vector<Vec3> SplineChain(const SplineCurve& curve);
// The same for a sound spline, after its start.
void FlattenSpline(const SplineCurve& curve, const Matrix& matrix, double tolerance, Path& path);

} // namespace drawcore
