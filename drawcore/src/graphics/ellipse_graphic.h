// Circles, arcs, ellipses and elliptical arcs.
#pragma once

#include "drawcore/src/geometry/arc.h"
#include "drawcore/src/graphics/graphic.h"

namespace drawcore {

class EllipseGraphic : public Graphic {
public:
    explicit EllipseGraphic(const EllipseArc& definition = {});
    EllipseGraphic(const EllipseGraphic&) = default;

    Kind GetKind() const override { return Kind::Curve; }
    std::unique_ptr<Graphic> CloneState() const override;
    void Restore(const Graphic& saved) override;
    bool EqualState(const Graphic& saved) const override;
    size_t StateSize() const override;
    void TraceShape(const Trace& trace, const PenUse& use) const override;

    EllipseArc arc;
};

} // namespace drawcore
