// Vertex lists: lines, polylines with bulges and widths, filled outlines, points, and groups of other graphics.
//
// A vertex without the flag kVertexDrawn begins a new stroke. For filling, each stroke is a separate outline unless
// dwOneOutline of the record is set: then the whole list is one outline, whose undrawn segments have no line. A list of
// one vertex is a point. A list without vertices but with members is a group.
#pragma once

#include "drawcore/src/graphics/graphic.h"
#include "drawcore/src/graphics/vertex.h"

namespace drawcore {

class VertexGraphic : public Graphic {
public:
    VertexGraphic();
    VertexGraphic(const VertexGraphic&) = default;

    Kind GetKind() const override;
    std::unique_ptr<Graphic> CloneState() const override;
    void Restore(const Graphic& saved) override;
    bool EqualState(const Graphic& saved) const override;
    size_t StateSize() const override;
    void TraceShape(const Trace& trace, const PenUse& use) const override;
    double Reach() const override;
    Vertex* VertexAt(size_t index) override { return index < vertices.size() ? &vertices[index] : nullptr; }

    bool IsGroup() const { return vertices.empty() && MemberCount() != 0; }
    void AddVertex(const Vec3& point, bool drawn = true) { vertices.emplace_back(point, drawn); }

    bool closed = false; // the last vertex has a segment to the first
    std::vector<Vertex> vertices;

protected:
    void AddShapeExtents(Extents& extents) const override;
};

} // namespace drawcore
