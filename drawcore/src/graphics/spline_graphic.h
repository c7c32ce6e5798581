// Splines.
#pragma once

#include "drawcore/src/geometry/spline.h"
#include "drawcore/src/graphics/graphic.h"

namespace drawcore {

class SplineGraphic : public Graphic {
public:
    explicit SplineGraphic(SplineCurve definition); // an invalid one draws its control polygon
    SplineGraphic(const SplineGraphic&) = default;

    Kind GetKind() const override { return Kind::Curve; }
    std::unique_ptr<Graphic> CloneState() const override;
    void Restore(const Graphic& saved) override;
    bool EqualState(const Graphic& saved) const override;
    size_t StateSize() const override;
    void TraceShape(const Trace& trace, const PenUse& use) const override;

    SplineCurve curve;
    bool closed = false;
};

} // namespace drawcore
