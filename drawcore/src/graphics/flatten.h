// Curves as short straight pieces.
#pragma once

#include "drawcore/src/graphics/ellipse_graphic.h"
#include "drawcore/src/graphics/path.h"
#include "drawcore/src/graphics/spline_graphic.h"

namespace drawcore {

// Adds the arc from behind its start to its end, the end as a corner. The steps stay within tolerance of the curve, and
// the points farthest left, right, up and down are among them.
void FlattenArc(const EllipseArc& arc, const Matrix& matrix, double tolerance, Path& path);
// The same for a sound spline.
void FlattenSpline(const SplineCurve& curve, const Matrix& matrix, double tolerance, Path& path);

// The arc that a bulge makes of the segment from a to b; false if it is straight.
bool ArcOfBulge(const Vec3& a, const Vec3& b, double bulge, EllipseArc& arc);

} // namespace drawcore
