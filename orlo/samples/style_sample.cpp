// The sample by which a control shows a style.

#include "orlo/samples/style_sample.h"

#include "orlo/win/gdi.h"

void DisposeSampleGraphic::operator()(GraphicStruct* graphic) const {
    GraphicAttach(graphic, nullptr);
    GraphicDispose(&graphic);
}

SampleGraphic MakeSampleGraphic(const orlo::host::OwnedVertex& vertex,
                                std::initializer_list<SampleVertex> vertices) {
    if (!vertex) return nullptr;
    SampleGraphic graphic(GraphicNewEx(kGraphicVertices, 0, 1));
    if (!graphic) return nullptr;
    for (const SampleVertex& at : vertices) {
        VertexSet(vertex.get(), at.x, at.y, 0.0);
        if (at.stroke == Stroke::Starts) vertex->wFlags &= static_cast<uint16_t>(~kVertexDrawn);
        if (at.stroke == Stroke::Continues) vertex->wFlags |= kVertexDrawn;
        GraphicVertexAdd(graphic.get(), vertex.get());
    }
    GraphicSetPenColor(graphic.get(), 0);
    return graphic;
}

void DrawSample(GraphicStruct* graphic, ViewportStruct* viewport, HDC dc, const RECT& cell) {
    const SavedDC saved(dc);
    ViewportSetRect(viewport, &cell);
    ViewportSetExtents(viewport, GraphicGetExtentsSel(graphic, 0), 3);
    ViewportSetGDIStuff(viewport, nullptr, dc, ::GetMapMode(dc), 1);
    GraphicDrawEx2(graphic, nullptr, viewport, 0, 1);
}

double SampleWidth(GraphicStruct* graphic) {
    const ExtentsStruct* const extents = GraphicGetExtentsSel(graphic, 0);
    return ExtentsGetX2(extents) - ExtentsGetX1(extents);
}
