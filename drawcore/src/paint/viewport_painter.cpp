// Paints graphics on the device of a viewport.
#include "drawcore/src/paint/viewport_painter.h"

#include <algorithm>

#include "drawcore/src/database/application.h"
#include "drawcore/src/graphics/vertex_graphic.h"
#include "drawcore/src/tables/unit_variables.h"

namespace drawcore {

namespace {

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

Color BackgroundOf(const Viewport& viewport, bool preview) {
    if (viewport.background) return *viewport.background;
    return preview ? Application::Get().PreviewBackground() : ::GetSysColor(COLOR_WINDOW);
}

} // namespace

const DrawingContents* DrawingFor(const Viewport& viewport, const Graphic& graphic) {
    const DrawingContents* drawing = DrawingContents::Find(viewport.drawing);
    return drawing ? drawing : graphic.GetDrawing();
}

PaintSettings SettingsOf(const Viewport& viewport, bool preview) {
    PaintSettings settings;
    settings.background = BackgroundOf(viewport, preview);
    settings.isView = viewport.background.has_value();
    if (!viewport.lineWeights) settings.widestPen = 1;
    return settings;
}

bool PaintUntil(PaintClock::time_point end, const Graphic& graphic, Viewport& viewport, uint32_t& place,
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
        viewport.painting.members =
            preview ? VisibleMembers()
                    : VisibleMembers(graphic, painter.NeededBox(), trace.matrix, painter.PaperInch());
    }
    tools.budget = viewport.painting.budget;
    const Trace inner = TraceOfMembers(graphic, trace);
    const VisibleMembers& members = viewport.painting.members;
    const size_t count = members.CountIn(graphic);
    while (place < count) {
        if (const Graphic* member = members.At(graphic, place)) TraceGraphic(*member, inner);
        constexpr uint32_t kAtOnce = 64; // number of graphics between time checks
        if (++place % kAtOnce == 0 && PaintClock::now() >= end) break;
    }
    viewport.painting.budget = tools.budget;
    return place >= count;
}

void Paint(const Graphic& graphic, Viewport& viewport, const Matrix& placement, const PaintSettings& settings,
           bool preview) {
    uint32_t place = 0;
    PaintUntil(PaintClock::time_point::max(), graphic, viewport, place, placement, settings, preview);
    viewport.painting = {};
}

} // namespace drawcore
