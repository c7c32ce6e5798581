// Implements EveryKind.

#include "pages/every_kind.h"

#include <gtest/gtest.h>

#include <oaidl.h>

#include "drawcore/selection.h"
#include "orlo/entry/entry.h"

namespace {

constexpr uint16_t kCross = 6; // in the brush styles of a new drawing

GraphicStruct* NewOutline(double size) {
    GraphicStruct* outline = ::GraphicNewEx(kGraphicVertices, 0, 1);
    const orlo::host::OwnedVertex vertex(::VertexNewEx(0, 0, 0));
    for (const auto& [x, y] : {std::pair(0.0, 0.0), {size, 0.0}, {size, size}, {0.0, 0.0}}) {
        ::VertexSet(vertex.get(), x, y, 0);
        ::GraphicVertexAdd(outline, vertex.get());
    }
    return outline;
}

void SetProperty(GraphicStruct* graphic, const char* name, uint16_t value) {
    const PropertyTable* table = ::GraphicGetVtbl(graphic);
    int32_t number;
    EXPECT_TRUE(table->PropLookup(graphic, &name, 1, 0, &number) && table->PropSet(graphic, number, VT_UI2, &value));
}

} // namespace

EveryKind::EveryKind()
    : m_selection(::SelectionNew()),
      m_block(::BlocksAddBlock(::BlocksFromDrawing(m_drawing.Get()), "Window", NewOutline(1))) {}

EveryKind::~EveryKind() {
    ::GraphicDispose(&m_selection);
}

void EveryKind::Select(int content) {
    for (int i = 0; i < 2; ++i) {
        if (content & kShapes) AddShape(i);
        if (content & kTexts) AddText(i);
        if (content & kInsertions) AddInsertion(i);
    }
}

void EveryKind::Add(GraphicStruct* graphic) {
    ::SelectionAdd(m_selection, ::GraphicAdd(::DrawingGetRoot(m_drawing.Get()), graphic));
}

void EveryKind::AddShape(int i) {
    GraphicStruct* shape = NewOutline(10 + i);
    ::GraphicSetPenColor(shape, i ? RGB(255, 0, 0) : RGB(0, 0, 255));
    ::GraphicSetPenWidth(shape, 0.01 * (i + 1));
    ::GraphicSetBrushStyle(shape, kCross); // without which the page would have no enabled fields
    ::GraphicSetBrushScale(shape, i + 1.0);
    SetProperty(shape, kPropBrushDrawMode, static_cast<uint16_t>(i));
    Add(shape);
}

void EveryKind::AddText(int i) {
    GraphicStruct* text = ::GraphicNewEx(kGraphicText, 0, 1);
    const orlo::host::OwnedVertex vertex(::VertexNewEx(0, i, 0));
    ::TextSetVWHAEx(text, vertex.get(), 0, i + 1.0, 0, i ? "Section" : "Plan");
    SetProperty(text, kPropTextFormat, static_cast<uint16_t>(i));
    Add(text);
}

void EveryKind::AddInsertion(int i) {
    GraphicStruct* insertion = ::GraphicNewEx(kGraphicInsert, 0, 1);
    const orlo::host::OwnedVertex vertex(::VertexNewEx(5.0 * i, 3, 0));
    MatrixStruct* rotated = ::MatrixRotateZ(nullptr, 0.5 * (i + 1), 0);
    MatrixStruct* placed = ::MatrixOffset(rotated, vertex.get());
    ::InsertSetData(insertion, ::BlocksFromDrawing(m_drawing.Get()), m_block, placed);
    ::MatrixDispose(&rotated);
    ::MatrixDispose(&placed);
    Add(insertion);
}

std::unique_ptr<CGraphicPropertySheet> EveryKind::NewSheet() const {
    ::PropPageInit();
    std::unique_ptr<CGraphicPropertySheet> sheet(
        ::InitGraphicPropertySheet(nullptr, nullptr, Drawing(), m_selection, kAllGraphics));
    for (GraphicStruct* graphic : orlo::host::Members(m_selection))
        ::AddGraphicPropertyPage(nullptr, graphic, sheet.get());
    return sheet;
}
