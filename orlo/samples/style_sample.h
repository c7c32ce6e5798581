// The sample that shows a style in a control: a small graphic of the host, whose style is set for each item, and the
// viewport in which the host draws it.
#pragma once

#include <memory>
#include <windows.h>

#include "orlo/host/graphic.h"
#include "orlo/host/owners.h"
#include "orlo/host/table.h"
#include "orlo/host/viewport.h"

// Detaches a graphic from its drawing and frees it.
struct DisposeSampleGraphic {
    void operator()(GraphicStruct* graphic) const;
};

using SampleGraphic = std::unique_ptr<GraphicStruct, DisposeSampleGraphic>;
using SampleViewport = orlo::host::OwnedViewport;

// Attaches the sample to the drawing that owns the table of styles. If there is no table, detaches it, so that it does
// not refer to a drawing that the host closes. makeGraphic is called if the control receives a table before it has a
// sample.
template <class MakeGraphic>
void AttachSample(SampleGraphic& graphic, SampleViewport& viewport, TableStruct* table, MakeGraphic makeGraphic) {
    if (table && !graphic) graphic = makeGraphic();
    if (table && !viewport) viewport.reset(::ViewportNewEx());
    DrawingStruct* const drawing = table ? ::TableGetOwner(table) : nullptr;
    if (graphic) ::GraphicAttach(graphic.get(), drawing);
    if (viewport) ::ViewportSetDrawing(viewport.get(), drawing);
}

// Draws the sample with its current style, scaled to the cell (device pixels). The state of dc is preserved.
void DrawSample(GraphicStruct* graphic, ViewportStruct* viewport, HDC dc, const RECT& cell);

// Returns the width of the sample in drawing units.
double SampleWidth(GraphicStruct* graphic);
