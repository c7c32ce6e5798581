// Extents, viewports and drawing: outlines, solid fills and texts. Dashes and hatches are not implemented.

#include <algorithm>
#include <cmath>
#include <new>

#include "database.h"

struct ViewportStruct {
    RECT rect = {};
    ExtentsStruct shown;
    HDC dc = nullptr;
    DrawingStruct* drawing = nullptr;
};

void ExtentsStruct::Add(double x, double y) {
    if (IsEmpty()) {
        *this = {x, y, x, y};
        return;
    }
    minX = std::min(minX, x);
    maxX = std::max(maxX, x);
    minY = std::min(minY, y);
    maxY = std::max(maxY, y);
}

namespace {

// A transformation in the plane.
struct Placement {
    double xx = 1, xy = 0, yx = 0, yy = 1, dx = 0, dy = 0;

    double X(double x, double y) const { return x * xx + y * yx + dx; }
    double Y(double x, double y) const { return x * xy + y * yy + dy; }
    // Returns the transformation that applies this one first.
    Placement FollowedBy(const Placement& next) const {
        return {xx * next.xx + xy * next.yx,
                xx * next.xy + xy * next.yy,
                yx * next.xx + yy * next.yx,
                yx * next.xy + yy * next.yy,
                next.X(dx, dy),
                next.Y(dx, dy)};
    }
};

Placement PlacementOf(const MatrixStruct* matrix) {
    if (!matrix) return {};
    const auto& m = matrix->at;
    return {m[0][0], m[0][1], m[1][0], m[1][1], m[3][0], m[3][1]};
}

// Returns the transformation from a block to its insertion.
Placement PlacementOf(const Content& insertion) {
    const auto& at = insertion.vertices;
    return {at[1].x - at[0].x, at[1].y - at[0].y, at[2].x - at[0].x, at[2].y - at[0].y, at[0].x, at[0].y};
}

Graphic* BlockOf(const Graphic& insertion) {
    TableStruct* blocks = ::BlocksFromDrawing(insertion.drawing);
    return Graphic::From(::BlockGetGraphic(blocks, insertion.content.block));
}

double TextWidth(const Content& content) {
    return 0.7 * content.textSize * static_cast<double>(content.text.size());
}

// Calls visit(graphic, placement) for the graphic and its members, including those of inserted blocks.
template <class Visit>
void ForEachMember(const Graphic& graphic, const Placement& placement, Visit visit) {
    visit(graphic, placement);
    for (const auto& member : graphic.members)
        ForEachMember(*member, placement, visit);
    if (graphic.bType != kGraphicInsert) return;
    if (const Graphic* block = BlockOf(graphic))
        ForEachMember(*block, PlacementOf(graphic.content).FollowedBy(placement), visit);
}

COLORREF PlainColor(const Graphic& graphic, uint32_t color) {
    if (color == kColorOfPen) color = graphic.content.penColor;
    if (color == kColorByLayer) color = ::LayerGetColor(graphic.drawing, static_cast<uint16_t>(graphic.content.layer));
    return color <= 0xFFFFFF ? color : 0;
}

template <class Object>
class Selected {
public:
    Selected(HDC dc, Object object) : dc_(dc), object_(object), before_(::SelectObject(dc, object)) {}
    ~Selected() {
        ::SelectObject(dc_, before_);
        ::DeleteObject(object_);
    }
    Selected(const Selected&) = delete;
    Selected& operator=(const Selected&) = delete;

private:
    HDC dc_;
    Object object_;
    HGDIOBJ before_;
};

class Painter {
public:
    explicit Painter(HDC dc) : dc_(dc), saved_(::SaveDC(dc)) {}
    ~Painter() { ::RestoreDC(dc_, saved_); }
    Painter(const Painter&) = delete;
    Painter& operator=(const Painter&) = delete;

    void Clip(const RECT& rect) { ::IntersectClipRect(dc_, rect.left, rect.top, rect.right, rect.bottom); }
    void Draw(const Graphic& graphic, const Placement& to) {
        if (graphic.bType == kGraphicText) DrawText(graphic, to);
        if (graphic.bType == kGraphicVertices) DrawOutline(graphic, to);
    }

private:
    void DrawOutline(const Graphic& graphic, const Placement& to) {
        std::vector<POINT> points, all;
        const Selected<HPEN> pen(dc_, NewPen(graphic, to));
        for (const VertexStruct& vertex : graphic.content.vertices)
            all.push_back(At(to, vertex.x, vertex.y));
        if (graphic.content.brushStyle != kBrushStyleNone && all.size() > 2) Fill(graphic, all);
        if (graphic.content.penStyle == kLineStyleNone) return;
        for (size_t i = 0; i < all.size(); ++i) {
            ::MoveToEx(dc_, all[i ? i - 1 : 0].x, all[i ? i - 1 : 0].y, nullptr);
            if (i && graphic.content.vertices[i].wFlags & kVertexDrawn) ::LineTo(dc_, all[i].x, all[i].y);
        }
    }

    void Fill(const Graphic& graphic, const std::vector<POINT>& outline) {
        const Selected<HBRUSH> brush(dc_, ::CreateSolidBrush(PlainColor(graphic, graphic.content.brushColor)));
        const Selected<HPEN> none(dc_, ::CreatePen(PS_NULL, 0, 0));
        ::SetPolyFillMode(dc_, graphic.content.brushDrawMode ? WINDING : ALTERNATE);
        ::Polygon(dc_, outline.data(), static_cast<int>(outline.size()));
    }

    void DrawText(const Graphic& graphic, const Placement& to) {
        const Content& content = graphic.content;
        LOGFONTA shape = {};
        shape.lfHeight = -std::lround(content.textSize * std::fabs(to.yy) / 0.7);
        shape.lfItalic = (content.textStyle & 1) != 0;
        shape.lfWeight = content.textStyle & 2 ? FW_BOLD : FW_NORMAL;
        shape.lfEscapement = shape.lfOrientation = std::lround(content.textAngle * 1800 / 3.141592653589793);
        CopyText(content.textFont, shape.lfFaceName, LF_FACESIZE);
        const Selected<HFONT> font(dc_, ::CreateFontIndirectA(&shape));
        ::SetTextColor(dc_, PlainColor(graphic, content.penColor));
        ::SetBkMode(dc_, TRANSPARENT);
        ::SetTextAlign(dc_, TA_BASELINE | TA_LEFT);
        const POINT at = At(to, content.x, content.y);
        ::TextOutA(dc_, at.x, at.y, content.text.c_str(), static_cast<int>(content.text.size()));
    }

    HPEN NewPen(const Graphic& graphic, const Placement& to) const {
        const double pixels = graphic.content.scaleSystem == kScaleWorld
                                  ? graphic.content.penWidth * std::hypot(to.xx, to.xy)
                                  : graphic.content.penWidth * ::GetDeviceCaps(dc_, LOGPIXELSX);
        return ::CreatePen(PS_SOLID, static_cast<int>(std::min(pixels, 1e4)),
                           PlainColor(graphic, graphic.content.penColor));
    }

    // GDI coordinates are limited to 27 bits.
    static POINT At(const Placement& to, double x, double y) {
        const auto pixel = [](double at) { return std::lround(std::clamp(at, -1e7, 1e7)); };
        return {pixel(to.X(x, y)), pixel(to.Y(x, y))};
    }

    HDC dc_;
    int saved_;
};

// Scales the extents to fit into the rectangle, centered and with the same aspect ratio.
Placement ToDevice(const ViewportStruct& viewport) {
    const RECT& rect = viewport.rect;
    const ExtentsStruct& shown = viewport.shown;
    const double width = std::max(shown.maxX - shown.minX, 1e-9), height = std::max(shown.maxY - shown.minY, 1e-9);
    const double scale = std::min((rect.right - rect.left) / width, (rect.bottom - rect.top) / height);
    return {scale,
            0,
            0,
            -scale,
            (rect.left + rect.right) / 2.0 - scale * (shown.minX + shown.maxX) / 2,
            (rect.top + rect.bottom) / 2.0 + scale * (shown.minY + shown.maxY) / 2};
}

} // namespace

ViewportStruct* ViewportNewEx(void) {
    return new (std::nothrow) ViewportStruct;
}

void ViewportDispose(ViewportStruct** viewport) {
    if (!viewport) return;
    delete *viewport;
    *viewport = nullptr;
}

void ViewportSetRect(ViewportStruct* viewport, const RECT* rect) {
    viewport->rect = *rect;
}

void ViewportSetExtents(ViewportStruct* viewport, const ExtentsStruct* extents, int fit) {
    if (fit == kFitWhole) viewport->shown = *extents;
}

void ViewportSetGDIStuff(ViewportStruct* viewport, HWND, HDC dc, int, int) {
    viewport->dc = dc;
}

void ViewportSetDrawing(ViewportStruct* viewport, DrawingStruct* drawing) {
    viewport->drawing = drawing;
}

const ExtentsStruct* GraphicGetExtentsSel(GraphicStruct* graphic, int) {
    if (!graphic) return nullptr;
    ExtentsStruct& extents = Graphic::From(graphic)->extents;
    extents = {};
    ForEachMember(*Graphic::From(graphic), {}, [&](const Graphic& part, const Placement& to) {
        const Content& content = part.content;
        if (part.bType == kGraphicVertices)
            for (const VertexStruct& vertex : content.vertices)
                extents.Add(to.X(vertex.x, vertex.y), to.Y(vertex.x, vertex.y));
        if (part.bType != kGraphicText) return;
        for (const double x : {content.x, content.x + TextWidth(content)})
            for (const double y : {content.y, content.y + content.textSize})
                extents.Add(to.X(x, y), to.Y(x, y));
    });
    return &extents;
}

double ExtentsGetX1(const ExtentsStruct* extents) {
    return extents && !extents->IsEmpty() ? extents->minX : 0;
}

double ExtentsGetX2(const ExtentsStruct* extents) {
    return extents && !extents->IsEmpty() ? extents->maxX : 0;
}

void GraphicDrawEx2(GraphicStruct* graphic, const MatrixStruct* matrix, ViewportStruct* viewport, int, int) {
    if (!graphic || !viewport || !viewport->dc || viewport->shown.IsEmpty()) return;
    Painter painter(viewport->dc);
    painter.Clip(viewport->rect);
    ForEachMember(*Graphic::From(graphic), PlacementOf(matrix).FollowedBy(ToDevice(*viewport)),
                  [&](const Graphic& part, const Placement& to) { painter.Draw(part, to); });
}

// ---- Texts

int TextSetVWHAEx(GraphicStruct* graphic, VertexStruct* at, double width, double height, double angle,
                  const char* text) {
    if (!graphic || graphic->bType != kGraphicText || !at || !text) return 0;
    if (!std::isfinite(at->x + at->y + width + height + angle)) return 0;
    Content& content = Graphic::From(graphic)->content;
    content.x = at->x;
    content.y = at->y;
    content.textAngle = angle;
    content.text = text;
    if (height > 0) content.textSize = height;
    return 1;
}

// Texts are laid out when they are drawn.
void TextExternalJustify(GraphicStruct*, int) {}
