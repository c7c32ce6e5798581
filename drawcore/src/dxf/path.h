// Traces the outline of an entity as lines and arcs. Texts, insertions and dimensions do not have their own outline.
#pragma once

#include <optional>

#include "drawcore/src/dxf/placement.h"
#include "drawcore/src/geometry/arc.h"
#include "drawcore/src/geometry/spline.h"

namespace dxf {

using drawcore::EllipseArc;

class PathSink {
public:
    virtual ~PathSink() = default;
    // Begins a new stroke; a stroke with only this point is a dot.
    virtual void MoveTo(Vec3) = 0;
    virtual void LineTo(Vec3) = 0;
    // From the current point (the start of the arc, except for rounding) to the end of the arc.
    virtual void ArcTo(const EllipseArc&) = 0;
};

// toWorld: matrix of the space that contains the entity.
void Trace(const Entity& entity, const Matrix& toWorld, PathSink& sink);

// Traces a loop of a hatch as one stroke in object coordinates; a polyline outline is traced the same way.
void Trace(const Hatch::Loop& loop, const Matrix& toWorld, PathSink& sink);

// Returns the arc of an entity in world coordinates, or nothing if it is not an arc, circle or ellipse.
std::optional<EllipseArc> ArcOf(const Entity& entity);

// Returns the curve of a spline entity; if it has only fit points, a curve through these.
drawcore::SplineCurve CurveOf(const Spline& spline);

} // namespace dxf
