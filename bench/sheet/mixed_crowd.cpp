// Making the crowd: one graphic of each kind in turn.
#include "bench/sheet/mixed_crowd.h"

#include <initializer_list>

#include "drawcore/application.h"
#include "drawcore/drawing.h"
#include "drawcore/selection.h"

namespace {

void AddSegment(GraphicStruct* outline, VertexStruct* vertex, double length) {
    for (const double x : {0.0, length}) {
        ::VertexSet(vertex, x, 0, 0);
        ::GraphicVertexAdd(outline, vertex);
    }
}

} // namespace

MixedCrowd::MixedCrowd(int n) : m_drawing(::DrawingNew()), m_selection(::SelectionNew()) {
    ::AppSetCurrentDrawing(m_drawing);
    VertexStruct* vertex = ::VertexNewEx(0, 0, 0);
    TableStruct* blocks = ::BlocksFromDrawing(m_drawing);
    GraphicStruct* content = ::GraphicNewEx(kGraphicVertices, 0, 1);
    AddSegment(content, vertex, 1);
    const uint16_t block = ::BlocksAddBlock(blocks, "Block", content);
    for (int i = 0; i < n; ++i) {
        constexpr uint8_t kTypes[] = {kGraphicVertices, kGraphicText, kGraphicInsert};
        GraphicStruct* graphic = ::GraphicNewEx(kTypes[i % 3], 0, 1);
        if (i % 3 == 0) AddSegment(graphic, vertex, 1);
        ::VertexSet(vertex, 0, 0, 0);
        if (i % 3 == 1) ::TextSetVWHAEx(graphic, vertex, 0, 1, 0, "Text");
        if (i % 3 == 2) ::InsertSetData(graphic, blocks, block, nullptr);
        ::SelectionAdd(m_selection, ::GraphicAdd(::DrawingGetRoot(m_drawing), graphic));
    }
    ::VertexDispose(&vertex);
}

MixedCrowd::~MixedCrowd() {
    ::GraphicDispose(&m_selection);
    ::DrawingDispose(&m_drawing);
}
