// Creates graphics from vertex lists.

#include "orlo/samples/vertex_list.h"

#include "orlo/host/owners.h"

GraphicStruct* NewVertexList(std::initializer_list<ListedVertex> vertices) {
    const orlo::host::OwnedVertex scratch(::VertexNewEx(0, 0, 0));
    if (scratch.get() == nullptr) return nullptr;
    GraphicStruct* graphic = ::GraphicNewEx(kGraphicVertices, 0, 1);
    if (graphic == nullptr) return nullptr;
    for (const ListedVertex& vertex : vertices) {
        ::VertexSet(scratch.get(), vertex.x, vertex.y, vertex.z);
        scratch.get()->wFlags = static_cast<uint16_t>(vertex.drawn ? scratch.get()->wFlags | kVertexDrawn
                                                                   : scratch.get()->wFlags & ~kVertexDrawn);
        ::GraphicVertexAdd(graphic, scratch.get());
    }
    return graphic;
}

GraphicStruct* NewPreviewShape(std::initializer_list<ListedVertex> vertices) {
    GraphicStruct* shape = NewVertexList(vertices);
    if (shape == nullptr) return nullptr;
    if (GraphicStruct* corners = NewVertexList({{0, 0, 0, false}, {1, 1, 0, false}})) {
        corners->dwFlags |= kFlagPreview;
        ::GraphicAdd(shape, corners);
    }
    return shape;
}

SampleGraphic NewSample(std::initializer_list<ListedVertex> vertices) {
    SampleGraphic sample(NewVertexList(vertices));
    if (sample) ::GraphicSetPenColor(sample.get(), 0);
    return sample;
}
