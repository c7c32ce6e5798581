// Walks the outline of an entity in straight lines and arcs. Texts, inserts and dimensions have no outline of
// their own.
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
    // Begins a new stroke; a stroke of this one place is a dot.
    virtual void MoveTo(Vec3) = 0;
    virtual void LineTo(Vec3) = 0;
    // From where the stroke is (the arc's start, but for rounding) to the arc's end.
    virtual void ArcTo(const EllipseArc&) = 0;
};

// In world coordinates if toWorld is the matrix of the space in which the entity lies.
void Trace(const Entity& entity, const Matrix& toWorld, PathSink& sink);

// One stroke for a loop of a hatch, in the object system; a polyline in an outline is traced the same way.
void Trace(const Hatch::Loop& loop, const Matrix& toWorld, PathSink& sink);

// The arc of an entity that has one shape only, in its world; none if it is another entity.
std::optional<EllipseArc> ArcOf(const Entity& entity);

// The curve of a spline entity; one by fit points only runs through them.
drawcore::SplineCurve CurveOf(const Spline& spline);

} // namespace dxf
