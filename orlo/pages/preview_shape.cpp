// Preview shapes.

#include "orlo/pages/preview_shape.h"

#include "orlo/host/vertex.h"

namespace {

constexpr uint16_t kDrawn = 1; // the segment to the vertex is drawn

class ScratchVertex {
public:
    ScratchVertex() : m_vertex(::VertexNewEx(0, 0, 0)) {}
    ~ScratchVertex() {
        if (m_vertex != nullptr) ::VertexDispose(&m_vertex);
    }
    ScratchVertex(const ScratchVertex&) = delete;
    ScratchVertex& operator=(const ScratchVertex&) = delete;

    VertexStruct* get() const { return m_vertex; }

private:
    VertexStruct* m_vertex;
};

void AddVertices(GraphicStruct* graphic, VertexStruct* scratch, std::initializer_list<PreviewPoint> points) {
    for (const PreviewPoint& point : points) {
        ::VertexSet(scratch, point.x, point.y, 0);
        ::GraphicVertexAdd(graphic, scratch);
    }
}

} // namespace

GraphicStruct* NewPreviewShape(std::initializer_list<PreviewPoint> points) {
    const ScratchVertex scratch;
    if (scratch.get() == nullptr) return nullptr;
    GraphicStruct* shape = ::GraphicNewEx(kGraphicVertices, 0, 1);
    if (shape == nullptr) return nullptr;
    AddVertices(shape, scratch.get(), points);

    if (GraphicStruct* corners = ::GraphicNewEx(kGraphicVertices, 0, 1)) {
        scratch.get()->wFlags &= static_cast<uint16_t>(~kDrawn);
        AddVertices(corners, scratch.get(), {{0, 0}, {1, 1}});
        corners->dwFlags |= kFlagPreview;
        ::GraphicAdd(shape, corners);
    }
    return shape;
}
