// Traces and transforms splines.
#include "drawcore/src/graphics/spline_graphic.h"

#include <algorithm>

#include "drawcore/src/geometry/flatten.h"
#include "drawcore/src/graphics/properties.h"
#include "drawcore/src/graphics/trace.h"

namespace drawcore {

SplineGraphic::SplineGraphic(SplineCurve definition)
    : Graphic(kGraphicPenBrush, &kShapeProperties), curve(std::move(definition)) {}

std::unique_ptr<Graphic> SplineGraphic::CloneState() const {
    return std::make_unique<SplineGraphic>(*this);
}

void SplineGraphic::Restore(const Graphic& saved) {
    RestoreAttributes(saved); // the curve of a spline never changes
}

size_t SplineGraphic::StateSize() const {
    return sizeof *this + curve.knots.size() * sizeof(double) + curve.points.size() * sizeof(Vec3) +
           curve.weights.size() * sizeof(double);
}

bool SplineGraphic::EqualState(const Graphic& saved) const {
    return EqualAttributes(saved);
}

void SplineGraphic::TraceShape(const Trace& trace, const PenUse& use) const {
    Path& path = trace.tools.path;
    path.Clear();
    if (curve.IsValid()) {
        path.MoveTo(trace.matrix.Plan(curve.At(curve.knots[static_cast<size_t>(curve.degree)])));
        FlattenSpline(curve, trace.matrix, trace.sink.Tolerance(), path);
    } else {
        for (size_t i = 0; i < curve.points.size(); ++i) {
            const Point p = trace.matrix.Plan(curve.points[i]);
            if (i)
                path.LineTo(p);
            else
                path.MoveTo(p);
        }
    }
    if (closed && !path.points.empty()) path.LineTo(path.points.front());
    TraceFill(*this, trace, use);
    if (use.strokes) trace.sink.Stroke(path, use);
}

} // namespace drawcore
