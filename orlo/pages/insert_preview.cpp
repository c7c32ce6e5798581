// The pyramid of the Block Insertion page.

#include "orlo/pages/insert_preview.h"

#include <algorithm>
#include <vector>

#include "orlo/host/block.h"
#include "orlo/host/owners.h"
#include "orlo/pages/current_drawing.h"
#include "orlo/samples/vertex_list.h"

namespace {

constexpr uint32_t kAxesColor = 0xFF00FF;

// Creates the base and the edges to the apex.
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

// Creates the axes with their letters.
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

GraphicStruct* NewPyramidInsertion(DrawingStruct* drawing) {
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

// The drawings whose block is in use, one entry per page that uses it.
std::vector<DrawingStruct*>& UsedDrawings() {
    static std::vector<DrawingStruct*> drawings;
    return drawings;
}

} // namespace

GraphicStruct* InsertPreview::NewInsertion(DrawingStruct* drawing) {
    if (m_drawing == nullptr) {
        UsedDrawings().push_back(drawing);
        m_drawing = drawing;
    }
    return NewPyramidInsertion(m_drawing);
}

InsertPreview::~InsertPreview() {
    std::vector<DrawingStruct*>& used = UsedDrawings();
    const auto find = [&](DrawingStruct* drawing) { return std::find(used.begin(), used.end(), drawing); };
    if (m_drawing != nullptr) used.erase(find(m_drawing));
    DrawingStruct* drawing = m_drawing != nullptr ? m_drawing : CurrentDrawing();
    if (find(drawing) != used.end()) return;
    TableStruct* blocks = ::BlocksFromDrawing(drawing);
    if (const uint16_t id = ::BlocksFindBlock(blocks, kPreviewBlock)) ::BlockDispose(blocks, id);
}
