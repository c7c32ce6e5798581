// Circles, arcs, ellipses and elliptical arcs: one formula, center + major * cos(t) + minor * sin(t).
#pragma once

#include "drawcore/src/graphics/graphic.h"

namespace drawcore {

struct EllipseArc {
    Vec3 center;
    Vec3 major{1, 0, 0}; // from the center to the point at t = 0
    Vec3 minor{0, 1, 0}; // to the point at t = a quarter turn
    double start =
        0; // radians of the parameter; the arc runs from start to end, to the left where end > start
    double end = 6.283185307179586;

    bool IsWhole() const;
    Vec3 At(double t) const;
};

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
