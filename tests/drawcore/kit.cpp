// What the tests of the drawing database share.

#include "drawcore/kit.h"

#include <algorithm>

#include <windows.h>

#include <wtypes.h>

GraphicStruct* MakeLines(const std::vector<P>& points) {
    GraphicStruct* graphic = GraphicNewEx(kGraphicVertices, 0, 1);
    for (const P& p : points) {
        VertexStruct* vertex = VertexNewEx(p.x, p.y, 0);
        if (!p.drawn) vertex->wFlags = 0;
        GraphicVertexAdd(graphic, vertex);
        VertexDispose(&vertex);
    }
    return graphic;
}

GraphicStruct* MakeSquare(double left, double bottom, double size) {
    const double right = left + size, top = bottom + size;
    return MakeLines({{left, bottom}, {right, bottom}, {right, top}, {left, top}, {left, bottom}});
}

namespace {

bool Set(GraphicStruct* graphic, const char* name, int vt, const void* value) {
    const PropertyTable* table = GraphicGetVtbl(graphic);
    int32_t number;
    return table && table->PropLookup(graphic, &name, 1, 0, &number) &&
           table->PropSet(graphic, number, vt, value);
}

bool Get(GraphicStruct* graphic, const char* name, int vt, void* value) {
    const PropertyTable* table = GraphicGetVtbl(graphic);
    int32_t number;
    return table && table->PropLookup(graphic, &name, 1, 0, &number) &&
           table->PropGet(graphic, number, vt, value);
}

} // namespace

bool SetWhole(GraphicStruct* graphic, const char* name, uint32_t value) {
    return Set(graphic, name, VT_UI4, &value);
}

bool SetReal(GraphicStruct* graphic, const char* name, double value) {
    return Set(graphic, name, VT_R8, &value);
}

bool SetText(GraphicStruct* graphic, const char* name, const char* value) {
    return Set(graphic, name, VT_BSTR, value);
}

uint32_t GetWhole(GraphicStruct* graphic, const char* name) {
    uint32_t value = 0xDEAD;
    Get(graphic, name, VT_UI4, &value);
    return value;
}

double GetReal(GraphicStruct* graphic, const char* name) {
    double value = -999;
    Get(graphic, name, VT_R8, &value);
    return value;
}

std::string GetText(GraphicStruct* graphic, const char* name) {
    char* value = nullptr;
    Get(graphic, name, VT_BSTR, &value);
    const std::string copy = value ? value : "(null)";
    BStringNULL(&value);
    return copy;
}

Picture::Picture(DrawingStruct* drawing) : m_pixels(101, 101), m_viewport(ViewportNewEx()) {
    const RECT rect = {0, 0, 101, 101};
    GraphicStruct* frame = MakeSquare(0, 0, 100);
    ViewportSetRect(m_viewport, &rect);
    ViewportSetExtents(m_viewport, GraphicGetExtentsSel(frame, 0), 3);
    ViewportSetGDIStuff(m_viewport, nullptr, m_pixels.DC(), MM_TEXT, 1);
    ViewportSetDrawing(m_viewport, drawing);
    GraphicDispose(&frame);
}

Picture::~Picture() {
    ViewportDispose(&m_viewport);
}

int Picture::Covered(int left, int bottom, int right, int top) const {
    const RECT box = {std::max(left, 0), std::max(100 - top, 0), std::min(right, 100) + 1,
                      std::min(100 - bottom, 100) + 1};
    return m_pixels.CountWhere(box, [](COLORREF color) { return color != RGB(255, 255, 255); });
}

bool Balance::IsEven() const {
    DrawCoreCensus now;
    DrawCoreGetCensus(&now);
    return now.blocks == m_before.blocks && now.graphics == m_before.graphics &&
           now.vertices == m_before.vertices && now.viewports == m_before.viewports;
}
