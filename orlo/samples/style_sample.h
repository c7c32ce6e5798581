// The sample by which a control shows a style: a small graphic of the host that is restyled for each item,
// and the viewport in which the host draws it.
#pragma once

#include <memory>
#include <windows.h>

#include "orlo/host/graphic.h"
#include "orlo/host/owners.h"
#include "orlo/host/table.h"
#include "orlo/host/viewport.h"

// Unties a graphic from its drawing and frees it.
struct DisposeSampleGraphic {
    void operator()(GraphicStruct* graphic) const;
};

using SampleGraphic = std::unique_ptr<GraphicStruct, DisposeSampleGraphic>;
using SampleViewport = orlo::host::OwnedViewport;

// Ties the sample to the drawing that owns the table of its styles; without a table unties it, so that a
// drawing is released before the host closes it. makeGraphic is called if the control has been given a table
// before it has a sample.
template <class MakeGraphic>
void AttachSample(SampleGraphic& graphic, SampleViewport& viewport, TableStruct* table, MakeGraphic makeGraphic) {
    if (table && !graphic) graphic = makeGraphic();
    if (table && !viewport) viewport.reset(::ViewportNewEx());
    DrawingStruct* const drawing = table ? ::TableGetOwner(table) : nullptr;
    if (graphic) ::GraphicAttach(graphic.get(), drawing);
    if (viewport) ::ViewportSetDrawing(viewport.get(), drawing);
}

// Draws the sample as it is styled now, fitted into the cell (device pixels). dc is left as it was.
void DrawSample(GraphicStruct* graphic, ViewportStruct* viewport, HDC dc, const RECT& cell);

// Width of the sample in drawing units.
double SampleWidth(GraphicStruct* graphic);
