// Outlines of DXF entities as vertices: strokes of lines and arcs.
#pragma once

#include "drawcore/src/dxf/path.h"
#include "drawcore/src/graphics/vertex_graphic.h"

namespace drawcore {

inline Vec3 FromDxf(const dxf::Point& p) {
    return {p.x, p.y, p.z};
}

// How many straight pieces show an arc that no bulge can show.
int StraightPieces(double sweep);

// Appends to the vertices of a graphic. Arcs that are circular from above become bulges, others short lines.
class VertexBuilder : public dxf::PathSink {
public:
    explicit VertexBuilder(VertexGraphic& graphic) : vertices_(graphic.vertices) {}
    void MoveTo(dxf::Point p) override;
    void LineTo(dxf::Point p) override { vertices_.emplace_back(FromDxf(p)); }
    void ArcTo(const dxf::EllipseArc& arc) override;

private:
    std::vector<Vertex>& vertices_;
};

} // namespace drawcore
