// Converts outlines of DXF entities to vertices: strokes of lines and arcs.
#pragma once

#include "drawcore/src/dxf/path.h"
#include "drawcore/src/graphics/vertex_graphic.h"

namespace drawcore {

// Returns the number of line segments for an arc that a bulge cannot represent.
int StraightPieces(double sweep);

// Appends to the vertices of a graphic. Arcs that are circular when seen from above become bulges, others line
// segments.
class VertexBuilder : public dxf::PathSink {
public:
    explicit VertexBuilder(VertexGraphic& graphic) : vertices_(graphic.vertices) {}
    void MoveTo(Vec3 p) override;
    void LineTo(Vec3 p) override { vertices_.emplace_back(p); }
    void ArcTo(const EllipseArc& arc) override;

private:
    std::vector<Vertex>& vertices_;
};

} // namespace drawcore
