// The sample that shows a style in a control.

#include "orlo/samples/style_sample.h"

#include "orlo/win/gdi.h"

void DisposeSampleGraphic::operator()(GraphicStruct* graphic) const {
    ::GraphicAttach(graphic, nullptr);
    ::GraphicDispose(&graphic);
}

void DrawSample(GraphicStruct* graphic, ViewportStruct* viewport, HDC dc, const RECT& cell) {
    const orlo::SavedDC saved(dc);
    ::ViewportSetRect(viewport, &cell);
    ::ViewportSetExtents(viewport, ::GraphicGetExtentsSel(graphic, 0), kFitWhole);
    ::ViewportSetGDIStuff(viewport, nullptr, dc, ::GetMapMode(dc), 1);
    ::GraphicDrawEx2(graphic, nullptr, viewport, 0, 1);
}

double SampleWidth(GraphicStruct* graphic) {
    const ExtentsStruct* const extents = ::GraphicGetExtentsSel(graphic, 0);
    return ::ExtentsGetX2(extents) - ::ExtentsGetX1(extents);
}
