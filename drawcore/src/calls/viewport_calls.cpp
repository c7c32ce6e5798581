// Functions of the host contract and of drawcore/include for viewports and extents: view, drawing, picking.

#include <new>

#include "drawcore/include/drawcore/view.h"
#include "drawcore/src/calls/matrix_record.h"
#include "drawcore/src/database/drawing.h"
#include "drawcore/src/graphics/selection.h"
#include "drawcore/src/paint/hit_test.h"
#include "drawcore/src/paint/viewport_painter.h"
#include "orlo/host/viewport.h"

using namespace drawcore;

ViewportStruct* ViewportNewEx(void) {
    return new (std::nothrow) Viewport;
}

void ViewportDispose(ViewportStruct** viewport) {
    if (!viewport || !*viewport) return;
    delete Viewport::From(*viewport);
    *viewport = nullptr;
}

void ViewportSetRect(ViewportStruct* viewport, const RECT* rect) {
    if (viewport && rect) Viewport::From(viewport)->rect = *rect;
}

void ViewportSetExtents(ViewportStruct* viewport, const ExtentsStruct* extents, int fit) {
    if (viewport && extents && fit == kFitWhole) Viewport::From(viewport)->Show(*Extents::From(extents));
}

void ViewportFitVisible(ViewportStruct* viewport, GraphicStruct* graphic) {
    if (!viewport || !graphic) return;
    Viewport& view = *Viewport::From(viewport);
    const Graphic& all = *Graphic::From(graphic);
    const Extents visible = VisibleExtents(all, DrawingFor(view, all));
    view.Show(visible.IsEmpty() ? all.GetExtents() : visible);
}

void ViewportSetGDIStuff(ViewportStruct* viewport, HWND, HDC dc, int mapMode, int) {
    if (!viewport) return;
    Viewport::From(viewport)->dc = dc;
    Viewport::From(viewport)->mapMode = mapMode;
}

void ViewportSetDrawing(ViewportStruct* viewport, DrawingStruct* drawing) {
    if (viewport) Viewport::From(viewport)->drawing = drawing;
}

void ViewportSetBackground(ViewportStruct* viewport, uint32_t color) {
    if (viewport) Viewport::From(viewport)->background = color;
}

void ViewportShowLineWeights(ViewportStruct* viewport, int show) {
    if (viewport) Viewport::From(viewport)->lineWeights = show != 0;
}

void GraphicDrawEx2(GraphicStruct* graphic, const MatrixStruct* matrix, ViewportStruct* viewport, int preview, int) {
    if (!graphic || !viewport) return;
    Viewport& view = *Viewport::From(viewport);
    Paint(*Graphic::From(graphic), view, MatrixFromRecord(matrix), SettingsOf(view, preview != 0), preview != 0);
    graphic->dwFlags &= ~kFlagDirty;
}

int GraphicDrawTimed(GraphicStruct* graphic, ViewportStruct* viewport, uint32_t* position, int milliseconds) {
    if (!graphic || !viewport || !position) return 1;
    Viewport& view = *Viewport::From(viewport);
    const auto end = PaintClock::now() + std::chrono::milliseconds(milliseconds);
    if (!PaintUntil(end, *Graphic::From(graphic), view, *position, {}, SettingsOf(view, false), false)) return 0;
    view.painting = {};
    graphic->dwFlags &= ~kFlagDirty;
    return 1;
}

void ViewportZoom(ViewportStruct* viewport, POINT fixed, double factor) {
    if (viewport) Viewport::From(viewport)->Zoom({static_cast<double>(fixed.x), static_cast<double>(fixed.y)}, factor);
}

void ViewportPan(ViewportStruct* viewport, int dx, int dy) {
    if (viewport) Viewport::From(viewport)->Pan(dx, dy);
}

void ViewportToDrawing(ViewportStruct* viewport, POINT device, double* x, double* y) {
    if (!viewport || !x || !y) return;
    const Point p = Viewport::From(viewport)->ToDrawing({static_cast<double>(device.x), static_cast<double>(device.y)});
    *x = p.x;
    *y = p.y;
}

GraphicStruct* ViewportPick(ViewportStruct* viewport, GraphicStruct* set, POINT device, int tolerance,
                            uint32_t filter) {
    if (!viewport || !set) return nullptr;
    return PickAt(*Viewport::From(viewport), *Graphic::From(set),
                  {static_cast<double>(device.x), static_cast<double>(device.y)}, tolerance, filter);
}

int ViewportPickWindow(ViewportStruct* viewport, GraphicStruct* set, const RECT* device, int crossing, uint32_t filter,
                       GraphicStruct* selection) {
    auto* into = selection ? dynamic_cast<Selection*>(Graphic::From(selection)) : nullptr;
    if (!viewport || !set || !device || !into) return 0;
    const Box box{static_cast<double>(std::min(device->left, device->right)),
                  static_cast<double>(std::min(device->top, device->bottom)),
                  static_cast<double>(std::max(device->left, device->right)),
                  static_cast<double>(std::max(device->top, device->bottom))};
    int added = 0;
    for (Graphic* found : PickWithin(*Viewport::From(viewport), *Graphic::From(set), box, crossing != 0, filter))
        added += into->Include(found);
    return added;
}

double ExtentsGetX1(const ExtentsStruct* extents) {
    return extents && !Extents::From(extents)->IsEmpty() ? Extents::From(extents)->low.x : 0.0;
}

double ExtentsGetX2(const ExtentsStruct* extents) {
    return extents && !Extents::From(extents)->IsEmpty() ? Extents::From(extents)->high.x : 0.0;
}

int ExtentsGetBox(const ExtentsStruct* extents, double box[4]) {
    if (!extents || Extents::From(extents)->IsEmpty()) return 0;
    const Extents& from = *Extents::From(extents);
    box[0] = from.low.x;
    box[1] = from.low.y;
    box[2] = from.high.x;
    box[3] = from.high.y;
    return 1;
}
