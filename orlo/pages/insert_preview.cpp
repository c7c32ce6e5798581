// The pyramid of the Block Insertion page.

#include "orlo/pages/insert_preview.h"

#include "orlo/host/block.h"
#include "orlo/host/owners.h"
#include "orlo/samples/vertex_list.h"

namespace {

constexpr uint32_t kAxesColor = 0xFF00FF;

// The base, and the edges to the apex.
GraphicStruct* NewPyramid() {
    return NewVertexList({{0.1, 0.1, 0, true},
                          {0.1, 0.9, 0, true},
                          {0.9, 0.9, 0, true},
                          {0.9, 0.1, 0, true},
                          {0.1, 0.1, 0, true},
                          {0.5, 0.5, 1.0, true},
                          {0.1, 0.9, 0, true},
                          {0.5, 0.5, 1.0, true},
                          {0.9, 0.9, 0, true},
                          {0.5, 0.5, 1.0, true},
                          {0.9, 0.1, 0, true}});
}

// Each axis with its letter.
GraphicStruct* NewAxes() {
    return NewVertexList({{0, 0, 0, false},
                          {1.0, 0, 0, true},
                          {1.05, -0.05, 0, false},
                          {1.13, 0.05, 0, true},
                          {1.13, -0.05, 0, false},
                          {1.05, 0.05, 0, true},

                          {0, 0, 0, false},
                          {0, 1.0, 0, true},
                          {0, 1.05, 0, false},
                          {0, 1.1, 0, true},
                          {-0.05, 1.15, 0, true},
                          {0, 1.1, 0, false},
                          {0.05, 1.15, 0, true},

                          {0, 0, 0, false},
                          {0, 0, 1.0, true},
                          {0, 0.05, 1.05, false},
                          {0, -0.05, 1.05, true},
                          {0, 0.05, 1.15, true},
                          {0, -0.05, 1.15, true}});
}

uint16_t AddBlock(TableStruct* blocks) {
    GraphicStruct* pyramid = NewPyramid();
    if (pyramid == nullptr) return 0;
    if (GraphicStruct* axes = NewAxes()) {
        ::GraphicAdd(pyramid, axes);
        ::GraphicSetPenColor(axes, kAxesColor);
    }
    const uint16_t id = ::BlocksAddBlock(blocks, kPreviewBlock, pyramid);
    if (id == 0) ::GraphicDispose(&pyramid);
    return id;
}

} // namespace

GraphicStruct* NewInsertPreview(DrawingStruct* drawing) {
    const orlo::host::OwnedVertex origin(::VertexNewEx(0, 0, 0));
    TableStruct* blocks = ::BlocksFromDrawing(drawing);
    if (origin.get() == nullptr || blocks == nullptr) return nullptr;
    uint16_t id = ::BlocksFindBlock(blocks, kPreviewBlock);
    if (id == 0) id = AddBlock(blocks);
    GraphicStruct* insertion = id != 0 ? ::GraphicNewEx(kGraphicInsert, 0, 1) : nullptr;
    if (insertion == nullptr) return nullptr;
    insertion->dwFlags |= kFlagPreview;
    MatrixStruct* matrix = ::MatrixOffset(nullptr, origin.get());
    ::InsertSetData(insertion, blocks, id, matrix);
    ::MatrixDispose(&matrix);
    return insertion;
}

void RemoveInsertPreview(DrawingStruct* drawing) {
    TableStruct* blocks = ::BlocksFromDrawing(drawing);
    if (const uint16_t id = ::BlocksFindBlock(blocks, kPreviewBlock)) ::BlockDispose(blocks, id);
}
