// Traces and transforms circles and ellipses.
#include "drawcore/src/graphics/ellipse_graphic.h"

#include "drawcore/src/geometry/flatten.h"
#include "drawcore/src/graphics/properties.h"
#include "drawcore/src/graphics/trace.h"

namespace drawcore {

EllipseGraphic::EllipseGraphic(const EllipseArc& definition)
    : Graphic(kGraphicPenBrush, &kShapeProperties), arc(definition) {}

std::unique_ptr<Graphic> EllipseGraphic::CloneState() const {
    return std::make_unique<EllipseGraphic>(*this);
}

void EllipseGraphic::Restore(const Graphic& saved) {
    const auto& other = static_cast<const EllipseGraphic&>(saved);
    RestoreAttributes(other);
    arc = other.arc;
}

size_t EllipseGraphic::StateSize() const {
    return sizeof *this;
}

bool EllipseGraphic::EqualState(const Graphic& saved) const {
    const EllipseArc& other = static_cast<const EllipseGraphic&>(saved).arc;
    return EqualAttributes(saved) && arc.center == other.center && arc.major == other.major &&
           arc.minor == other.minor && arc.start == other.start && arc.sweep == other.sweep;
}

void EllipseGraphic::TraceShape(const Trace& trace, const PenUse& use) const {
    Path& path = trace.tools.path;
    path.Clear();
    path.MoveTo(trace.matrix.Plan(arc.At(arc.start)));
    FlattenArc(arc, trace.matrix, trace.sink.Tolerance(), path);
    TraceFill(*this, trace, use);
    if (use.strokes) trace.sink.Stroke(path, use);
}

} // namespace drawcore
