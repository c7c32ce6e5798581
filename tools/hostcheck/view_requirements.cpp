// Requirements of extents, viewports and drawing.

#include <cmath>

#include "requirement.h"

namespace {

constexpr int kWidth = 200, kHeight = 100;
constexpr COLORREF kBackground = RGB(255, 255, 255), kForeground = RGB(0, 0, 0);
constexpr RECT kRect = {10, 10, 190, 90};

// A white bitmap in memory.
class Picture {
public:
    Picture() : dc(::CreateCompatibleDC(nullptr)) {
        BITMAPINFO info = {};
        info.bmiHeader = {sizeof info.bmiHeader, kWidth, -kHeight, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
        void* bits = nullptr;
        bitmap_ = ::CreateDIBSection(dc, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
        previous_ = ::SelectObject(dc, bitmap_);
        const RECT all = {0, 0, kWidth, kHeight};
        ::FillRect(dc, &all, static_cast<HBRUSH>(::GetStockObject(WHITE_BRUSH)));
    }
    ~Picture() {
        ::SelectObject(dc, previous_);
        ::DeleteObject(bitmap_);
        ::DeleteDC(dc);
    }
    Picture(const Picture&) = delete;
    Picture& operator=(const Picture&) = delete;

    // Returns the bounds of the pixels that are not white; right < left if there are none.
    RECT Drawn() const {
        RECT drawn = {kWidth, kHeight, 0, 0};
        for (LONG y = 0; y < kHeight; ++y)
            for (LONG x = 0; x < kWidth; ++x)
                if (::GetPixel(dc, x, y) != kBackground)
                    drawn = {std::min(drawn.left, x), std::min(drawn.top, y), std::max(drawn.right, x),
                             std::max(drawn.bottom, y)};
        return drawn;
    }

    const HDC dc;

private:
    HBITMAP bitmap_;
    HGDIOBJ previous_;
};

// Draws a black square of ten units, fitted into the rectangle of the viewport.
struct Scene {
    explicit Scene(const Subject& s, const MatrixStruct* matrix = nullptr, int preview = 0)
        : square(s.NewSquare(10)), viewport(s.NewViewport()) {
        CALL(s.host, GraphicSetPenColor)(square.get(), kForeground);
        CALL(s.host, GraphicSetPenStyle)(square.get(), s.Entries(s.Table(kTableLineStyles))[0]);
        CALL(s.host, GraphicSetBrushStyle)(square.get(), kBrushStyleNone);
        CALL(s.host, ViewportSetRect)(viewport.get(), &kRect);
        CALL(s.host, ViewportSetExtents)
        (viewport.get(), CALL(s.host, GraphicGetExtentsSel)(square.get(), 0), kFitWhole);
        CALL(s.host, ViewportSetGDIStuff)(viewport.get(), nullptr, picture.dc, MM_TEXT, 1);
        CALL(s.host, ViewportSetDrawing)(viewport.get(), s.drawing);
        CALL(s.host, GraphicDrawEx2)(square.get(), matrix, viewport.get(), preview, 1);
    }

    Picture picture;
    Owned<GraphicStruct> square;
    Owned<ViewportStruct> viewport;
};

void HasExtents(const Subject& s) {
    const auto square = s.NewSquare(10);
    const ExtentsStruct* extents = CALL(s.host, GraphicGetExtentsSel)(square.get(), 0);
    Require(extents, "returned null");
    const double left = CALL(s.host, ExtentsGetX1)(extents), right = CALL(s.host, ExtentsGetX2)(extents);
    Require(left == 0 && right == 10, "the extents of a square from 0 to 10 are %g to %g", left, right);
}

void ExtentsFollowVerticesAndMembers(const Subject& s) {
    const auto square = s.NewSquare(10);
    CALL(s.host, VertexSet)(s.Vertices(square.get())[1], 15, 0, 0);
    CALL(s.host, GraphicSetExtentsDirty)(square.get(), 1);
    double right = CALL(s.host, ExtentsGetX2)(CALL(s.host, GraphicGetExtentsSel)(square.get(), 0));
    Require(right == 15, "a vertex was moved to 15, but the extents end at %g", right);
    CALL(s.host, GraphicAdd)(square.get(), s.NewSquare(30).release());
    right = CALL(s.host, ExtentsGetX2)(CALL(s.host, GraphicGetExtentsSel)(square.get(), 0));
    Require(right == 30, "a member ends at 30, but the extents end at %g", right);
}

void EmptyExtentsAreZero(const Subject& s) {
    const auto none = s.NewGraphic(kGraphicVertices);
    const ExtentsStruct* extents = CALL(s.host, GraphicGetExtentsSel)(none.get(), 0);
    const double left = CALL(s.host, ExtentsGetX1)(extents), right = CALL(s.host, ExtentsGetX2)(extents);
    Require(left == 0 && right == 0, "the extents of a graphic without vertices are %g to %g instead of 0 to 0", left,
            right);
}

void Draws(const Subject& s) {
    for (const int preview : {0, 1}) {
        const RECT drawn = Scene(s, nullptr, preview).picture.Drawn();
        Require(drawn.right > drawn.left && drawn.bottom > drawn.top, "nothing is drawn with preview %d", preview);
    }
}

void FitsAndCenters(const Subject& s) {
    const RECT drawn = Scene(s).picture.Drawn();
    const double middle = (drawn.left + drawn.right) / 2.0, width = drawn.right - drawn.left,
                 height = drawn.bottom - drawn.top;
    Require(std::fabs(middle - 100) <= 2, "the drawing is centered at %g instead of 100", middle);
    Require(std::fabs(width - height) <= 2, "a square is drawn as %g by %g pixels", width, height);
    Require(height > 60 && height <= 82, "the square is %g pixels high in a rectangle of 80", height);
}

void StaysInItsRectangle(const Subject& s) {
    const auto factors = s.NewVertex(100, 100, 1);
    const auto larger = s.Own(CALL(s.host, MatrixScale)(nullptr, factors.get(), 0));
    const RECT drawn = Scene(s, larger.get()).picture.Drawn();
    const bool inside = drawn.left >= kRect.left - 1 && drawn.top >= kRect.top - 1 && drawn.right <= kRect.right &&
                        drawn.bottom <= kRect.bottom;
    Require(inside || drawn.right < drawn.left, "drew from %ld, %ld to %ld, %ld, outside the rectangle", drawn.left,
            drawn.top, drawn.right, drawn.bottom);
}

void DrawsByTheMatrix(const Subject& s) {
    const auto factors = s.NewVertex(0.5, 0.5, 1);
    const auto half = s.Own(CALL(s.host, MatrixScale)(nullptr, factors.get(), 0));
    const RECT drawn = Scene(s, half.get()).picture.Drawn(), whole = Scene(s).picture.Drawn();
    const double ratio = static_cast<double>(drawn.right - drawn.left) / (whole.right - whole.left);
    Require(std::fabs(ratio - 0.5) < 0.1, "scaled by 0.5, the drawing is %g times as wide", ratio);
    Require(drawn.bottom >= whole.bottom - 2, "drawn upside down; y grows upward");
}

void RestoresTheDeviceContext(const Subject& s) {
    struct State {
        HGDIOBJ pen, brush, font;
        COLORREF text, background;
        int mode, rop, map, align;
        POINT origin;
    };
    const auto stateOf = [](HDC dc) {
        State state = {::GetCurrentObject(dc, OBJ_PEN),
                       ::GetCurrentObject(dc, OBJ_BRUSH),
                       ::GetCurrentObject(dc, OBJ_FONT),
                       ::GetTextColor(dc),
                       ::GetBkColor(dc),
                       ::GetBkMode(dc),
                       ::GetROP2(dc),
                       ::GetMapMode(dc),
                       static_cast<int>(::GetTextAlign(dc)),
                       {}};
        ::GetViewportOrgEx(dc, &state.origin);
        return state;
    };
    const State before = stateOf(Picture().dc);
    const Scene scene(s);
    const State after = stateOf(scene.picture.dc);
    Require(before.pen == after.pen && before.brush == after.brush && before.font == after.font,
            "a pen, brush or font is still selected");
    Require(before.text == after.text && before.background == after.background && before.mode == after.mode &&
                before.rop == after.rop && before.align == after.align,
            "colors or modes were not restored");
    Require(before.map == after.map && before.origin.x == after.origin.x && before.origin.y == after.origin.y,
            "the mapping was not restored");
    RECT clip;
    ::GetClipBox(scene.picture.dc, &clip);
    Require(clip.right - clip.left == kWidth, "the clipping region was not restored");
}

void ClearsThePointer(const Subject& s) {
    ViewportStruct* viewport = s.NewViewport().release();
    CALL(s.host, ViewportDispose)(&viewport);
    Require(!viewport, "the pointer is %p afterwards", static_cast<void*>(viewport));
}

constexpr Requirement kRows[] = {
    {"GraphicGetExtentsSel", "returns extents; ExtentsGetX1 and ExtentsGetX2 return their ends", HasExtents},
    {"GraphicGetExtentsSel", "follows moved vertices and includes members", ExtentsFollowVerticesAndMembers},
    {"ExtentsGetX1", "and ExtentsGetX2 return 0 for empty extents", EmptyExtentsAreZero},
    {"ViewportDispose", "sets the pointer to null", ClearsThePointer},
    {"GraphicDrawEx2", "draws the graphic, both with preview 0 and 1", Draws},
    {"ViewportSetExtents", "fits into the rectangle, centered, with the aspect ratio kept", FitsAndCenters},
    {"ViewportSetRect", "limits drawing to the rectangle", StaysInItsRectangle},
    {"GraphicDrawEx2", "transforms by the matrix", DrawsByTheMatrix},
    {"ViewportSetGDIStuff", "and drawing do not change the state of the device context", RestoresTheDeviceContext},
};

} // namespace

const Topic kViewRequirements = TopicOf(kRows);
