// Creates one graphic of each kind in turn.
#include "bench/sheet/mixed_drawing.h"

#include <initializer_list>

#include "orlo/host/host.h"

namespace {

void AddSegment(GraphicStruct* outline, VertexStruct* vertex, double length) {
    for (const double x : {0.0, length}) {
        ::VertexSet(vertex, x, 0, 0);
        ::GraphicVertexAdd(outline, vertex);
    }
}

} // namespace

MixedDrawing::MixedDrawing(int n) {
    const orlo::host::OwnedVertex vertex(::VertexNewEx(0, 0, 0));
    TableStruct* blocks = ::BlocksFromDrawing(Drawing());
    GraphicStruct* content = ::GraphicNewEx(kGraphicVertices, 0, 1);
    AddSegment(content, vertex.get(), 1);
    const uint16_t block = ::BlocksAddBlock(blocks, "Block", content);
    for (int i = 0; i < n; ++i) {
        constexpr uint8_t kTypes[] = {kGraphicVertices, kGraphicText, kGraphicInsert};
        GraphicStruct* graphic = ::GraphicNewEx(kTypes[i % 3], 0, 1);
        if (i % 3 == 0) AddSegment(graphic, vertex.get(), 1);
        ::VertexSet(vertex.get(), 0, 0, 0);
        if (i % 3 == 1) ::TextSetVWHAEx(graphic, vertex.get(), 0, 1, 0, "Text");
        if (i % 3 == 2) ::InsertSetData(graphic, blocks, block, nullptr);
        Add(graphic);
    }
}
