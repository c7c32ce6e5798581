// Functions of hosts and host programs for viewports and extents: view, drawing, picking.

#include <chrono>
#include <new>

#include "drawcore/include/drawcore/units.h"
#include "drawcore/include/drawcore/view.h"
#include "drawcore/src/calls/matrix_record.h"
#include "drawcore/src/database/application.h"
#include "drawcore/src/database/drawing.h"
#include "drawcore/src/graphics/selection.h"
#include "drawcore/src/graphics/vertex_graphic.h"
#include "drawcore/src/paint/gdi_painter.h"
#include "drawcore/src/paint/hit_test.h"
#include "drawcore/src/paint/viewport.h"
#include "drawcore/src/tables/unit_variables.h"
#include "orlo/host/viewport.h"

namespace drawcore {

namespace {

const DrawingContents* DrawingFor(const Viewport& viewport, const Graphic& graphic) {
    const DrawingContents* drawing = DrawingContents::Find(viewport.drawing);
    return drawing ? drawing : graphic.GetDrawing();
}

// Dash patterns are scaled with the drawing's line scale only in the drawing itself, not in samples and previews.
double LineScale(const Graphic& graphic, const DrawingContents* drawing) {
    return drawing && &graphic.Top() == &drawing->Root() ? drawing->lineScale : 1.0;
}

// A preview shows pens in their size on paper, regardless of the extents. Returns the pixels per drawing unit.
double FullSizeUnit(HDC dc, const DrawingContents* drawing) {
    const Table* units = drawing ? drawing->Units() : nullptr;
    const LengthUnit* unit = units ? UnitOfVariable(*units, kUnitDrawing) : nullptr;
    return (unit ? unit->millimeters : 1.0) * ::GetDeviceCaps(dc, LOGPIXELSX) / kMillimetersPerInch;
}

// Sets the device context to pixels, the units of the viewport. In other mapping modes the rectangle is converted.
class PixelDC {
public:
    PixelDC(const Viewport& viewport) : saved_(viewport.dc), rect_(viewport.rect) {
        if (viewport.mapMode == MM_TEXT) return;
        ::LPtoDP(viewport.dc, reinterpret_cast<POINT*>(&rect_), 2);
        ::SetMapMode(viewport.dc, MM_TEXT);
        ::SetViewportOrgEx(viewport.dc, 0, 0, nullptr);
        ::SetWindowOrgEx(viewport.dc, 0, 0, nullptr);
        rect_ = {std::min(rect_.left, rect_.right), std::min(rect_.top, rect_.bottom),
                 std::max(rect_.left, rect_.right), std::max(rect_.top, rect_.bottom)};
    }
    // Converts from pixels of the viewport's rectangle to pixels of the device context.
    Matrix FromViewport(const RECT& rect) const {
        const double across = rect.right - rect.left, down = rect.bottom - rect.top;
        if (across <= 0 || down == 0) return {};
        const double sx = (rect_.right - rect_.left) / across, sy = (rect_.bottom - rect_.top) / down;
        return Matrix::FromAxes({sx, 0, 0}, {0, sy, 0}, {0, 0, 1},
                                {rect_.left - rect.left * sx, rect_.top - rect.top * sy, 0});
    }
    const RECT& Rect() const { return rect_; }

private:
    SavedDC saved_;
    RECT rect_;
};

// A hidden layer would hide the preview.
Id PreviewLayerOf(const DrawingContents* drawing) {
    const Id id = Application::Get().PreviewLayer();
    const LayerTable* layers = drawing ? drawing->Layers() : nullptr;
    const Layer* layer = layers ? layers->At(id) : nullptr;
    return layer && layer->IsVisible() ? id : kLayerZero;
}

using Clock = std::chrono::steady_clock;

// Paints a graphic and then its members until the time is up. place: 0 at first, then the value from the last call.
// Returns true when everything has been painted.
bool PaintUntil(Clock::time_point end, const Graphic& graphic, Viewport& viewport, uint32_t& place,
                const Matrix& placement, PaintSettings settings, bool preview) {
    if (!viewport.dc) return true;
    const PixelDC device(viewport);
    const RECT& rect = device.Rect();
    const DrawingContents* drawing = DrawingFor(viewport, graphic);
    if (preview) settings.widestPen = std::min(rect.right - rect.left, rect.bottom - rect.top) / 8.0;
    GdiPainter painter(viewport.dc, rect, settings);
    TraceTools tools(drawing);
    Trace trace(painter, tools, placement * viewport.ToDevice() * device.FromViewport(viewport.rect));
    if (preview) {
        trace.penUnit = FullSizeUnit(viewport.dc, drawing);
        trace.layer = PreviewLayerOf(drawing);
    } else {
        trace.lineScale = LineScale(graphic, drawing);
    }
    if (place == 0) {
        if (!TraceAlone(graphic, trace)) return true;
        viewport.painting.budget = tools.budget;
        viewport.painting.seen =
            preview ? VisibleMembers() : VisibleMembers(graphic, painter.Wanted(), trace.matrix, painter.PaperInch());
    }
    tools.budget = viewport.painting.budget;
    const Trace inner = TraceOfMembers(graphic, trace);
    const VisibleMembers& seen = viewport.painting.seen;
    const size_t count = seen.CountIn(graphic);
    while (place < count) {
        if (const Graphic* member = seen.At(graphic, place)) TraceGraphic(*member, inner);
        constexpr uint32_t kAtOnce = 64; // number of graphics between time checks
        if (++place % kAtOnce == 0 && Clock::now() >= end) break;
    }
    viewport.painting.budget = tools.budget;
    return place >= count;
}

void Paint(const Graphic& graphic, Viewport& viewport, const Matrix& placement, const PaintSettings& settings,
           bool preview) {
    uint32_t place = 0;
    PaintUntil(Clock::time_point::max(), graphic, viewport, place, placement, settings, preview);
    viewport.painting = {};
}

Color BackgroundOf(const Viewport& viewport, bool preview) {
    if (viewport.background) return *viewport.background;
    return preview ? Application::Get().PreviewBackground() : ::GetSysColor(COLOR_WINDOW);
}

PaintSettings SettingsOf(const Viewport& viewport, bool preview) {
    PaintSettings settings;
    settings.background = BackgroundOf(viewport, preview);
    settings.isView = viewport.background.has_value();
    if (!viewport.lineWeights) settings.widestPen = 1;
    return settings;
}

} // namespace

} // namespace drawcore

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

void ViewportFitSeen(ViewportStruct* viewport, GraphicStruct* graphic) {
    if (!viewport || !graphic) return;
    Viewport& view = *Viewport::From(viewport);
    const Graphic& all = *Graphic::From(graphic);
    const Extents seen = VisibleExtents(all, DrawingFor(view, all));
    view.Show(seen.IsEmpty() ? all.GetExtents() : seen);
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

int GraphicDrawOn(GraphicStruct* graphic, ViewportStruct* viewport, uint32_t* place, int milliseconds) {
    if (!graphic || !viewport || !place) return 1;
    Viewport& view = *Viewport::From(viewport);
    const auto end = Clock::now() + std::chrono::milliseconds(milliseconds);
    if (!PaintUntil(end, *Graphic::From(graphic), view, *place, {}, SettingsOf(view, false), false)) return 0;
    view.painting = {};
    graphic->dwFlags &= ~kFlagDirty;
    return 1;
}

void GraphicDrawHighlighted(GraphicStruct* set, ViewportStruct* viewport, uint32_t color) {
    if (!set || !viewport) return;
    PaintSettings settings;
    settings.highlight = color;
    Paint(*Graphic::From(set), *Viewport::From(viewport), {}, settings, false);
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
