// Support for tests of the drawing database.

#include "drawcore/kit.h"

#include <algorithm>

#include <windows.h>

#include "orlo/host/walk.h"

using orlo::host::OwnedMatrix;
using orlo::host::OwnedVertex;

GraphicStruct* MakeLines(const std::vector<P>& points) {
    GraphicStruct* graphic = GraphicNewEx(kGraphicVertices, 0, 1);
    for (const P& p : points) {
        const OwnedVertex vertex(VertexNewEx(p.x, p.y, 0));
        if (!p.drawn) vertex->wFlags = 0;
        GraphicVertexAdd(graphic, vertex.get());
    }
    return graphic;
}

GraphicStruct* MakeSquare(double left, double bottom, double size) {
    const double right = left + size, top = bottom + size;
    return MakeLines({{left, bottom}, {right, bottom}, {right, top}, {left, top}, {left, bottom}});
}

GraphicStruct* MakeText(const char* text, P at, double height, double angle, double width) {
    GraphicStruct* graphic = GraphicNewEx(kGraphicText, 0, 1);
    TextSetVWHAEx(graphic, OwnedVertex(VertexNewEx(at.x, at.y, 0)).get(), width, height, angle, text);
    SetText(graphic, kPropTextFont, "Tahoma");
    return graphic;
}

GraphicStruct* MakeInsert(TableStruct* blocks, uint16_t block, P at, double sx, double sy, double angle) {
    const OwnedMatrix scaled(MatrixScale(nullptr, OwnedVertex(VertexNewEx(sx, sy, 1)).get(), 0));
    const OwnedMatrix rotated(MatrixRotateZ(scaled.get(), angle, 0));
    const OwnedMatrix placed(MatrixOffset(rotated.get(), OwnedVertex(VertexNewEx(at.x, at.y, 0)).get()));
    GraphicStruct* insert = GraphicNewEx(kGraphicInsert, 0, 1);
    InsertSetData(insert, blocks, block, placed.get());
    return insert;
}

void AddVertex(GraphicStruct* graphic, double x, double y) {
    GraphicVertexAdd(graphic, OwnedVertex(VertexNewEx(x, y, 0)).get());
}

std::vector<GraphicStruct*> Members(GraphicStruct* set, uint32_t filter) {
    std::vector<GraphicStruct*> members;
    for (GraphicStruct* member : orlo::host::Members(set, filter))
        members.push_back(member);
    return members;
}

Box BoxOf(GraphicStruct* graphic) {
    double box[4] = {};
    ExtentsGetBox(GraphicGetExtentsSel(graphic, 0), box);
    return {box[0], box[1], box[2], box[3]};
}

Picture::Picture(DrawingStruct* drawing) : m_viewport(ViewportNewEx()) {
    const RECT rect = {0, 0, 101, 101};
    ViewportSetRect(Viewport(), &rect);
    ViewportSetExtents(Viewport(), GraphicGetExtentsSel(TestGraphic(MakeSquare(0, 0, 100)), 0), kFitWhole);
    ViewportSetGDIStuff(Viewport(), nullptr, m_pixels.DC(), MM_TEXT, 1);
    ViewportSetDrawing(Viewport(), drawing);
}

void Picture::Draw(GraphicStruct* graphic, int preview, COLORREF paper) {
    m_pixels.Clear(paper);
    GraphicDrawEx2(graphic, nullptr, Viewport(), preview, 1);
}

int Picture::Covered(int left, int bottom, int right, int top) const {
    const RECT box = {std::max(left, 0), std::max(100 - top, 0), std::min(right, 100) + 1,
                      std::min(100 - bottom, 100) + 1};
    return m_pixels.CountWhere(box, [](COLORREF color) { return color != RGB(255, 255, 255); });
}

bool LeakCheck::HasNoLeaks() const {
    DrawCoreObjectCounts now;
    DrawCoreGetObjectCounts(&now);
    return now.blocks == m_before.blocks && now.graphics == m_before.graphics && now.vertices == m_before.vertices &&
           now.viewports == m_before.viewports;
}
