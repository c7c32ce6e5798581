// Extents, viewports and drawing.

#include <cmath>

#include "promise.h"

namespace {

constexpr int kWidth = 200, kHeight = 100;
constexpr COLORREF kPaper = RGB(255, 255, 255), kInk = RGB(0, 0, 0);
constexpr RECT kRect = {10, 10, 190, 90};

// A picture in memory, white.
class Picture {
public:
    Picture() : dc(::CreateCompatibleDC(nullptr)) {
        BITMAPINFO info = {};
        info.bmiHeader = {sizeof info.bmiHeader, kWidth, -kHeight, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
        void* bits = nullptr;
        bitmap_ = ::CreateDIBSection(dc, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
        before_ = ::SelectObject(dc, bitmap_);
        const RECT all = {0, 0, kWidth, kHeight};
        ::FillRect(dc, &all, static_cast<HBRUSH>(::GetStockObject(WHITE_BRUSH)));
    }
    ~Picture() {
        ::SelectObject(dc, before_);
        ::DeleteObject(bitmap_);
        ::DeleteDC(dc);
    }
    Picture(const Picture&) = delete;
    Picture& operator=(const Picture&) = delete;

    // The bounds of what is not white; empty if all is.
    RECT Drawn() const {
        RECT drawn = {kWidth, kHeight, 0, 0};
        for (LONG y = 0; y < kHeight; ++y)
            for (LONG x = 0; x < kWidth; ++x)
                if (::GetPixel(dc, x, y) != kPaper)
                    drawn = {std::min(drawn.left, x), std::min(drawn.top, y), std::max(drawn.right, x),
                             std::max(drawn.bottom, y)};
        return drawn;
    }

    const HDC dc;

private:
    HBITMAP bitmap_;
    HGDIOBJ before_;
};

// A black square of ten units that fills the rectangle of the viewport.
struct Scene {
    explicit Scene(const Subject& s, const MatrixStruct* matrix = nullptr, int preview = 0)
        : square(s.NewSquare(10)), viewport(s.NewViewport()) {
        CALL(s.host, GraphicSetPenColor)(square.get(), kInk);
        CALL(s.host, GraphicSetPenStyle)(square.get(), s.Entries(s.Table(kTableLineStyles))[0]);
        CALL(s.host, GraphicSetBrushStyle)(square.get(), kBrushStyleNone);
        CALL(s.host, ViewportSetRect)(viewport.get(), &kRect);
        CALL(s.host, ViewportSetExtents)
        (viewport.get(), CALL(s.host, GraphicGetExtentsSel)(square.get(), 0), 3);
        CALL(s.host, ViewportSetGDIStuff)(viewport.get(), nullptr, picture.dc, MM_TEXT, 1);
        CALL(s.host, ViewportSetDrawing)(viewport.get(), s.drawing);
        CALL(s.host, GraphicDrawEx2)(square.get(), matrix, viewport.get(), preview, 1);
    }

    Picture picture;
    Made<GraphicStruct> square;
    Made<ViewportStruct> viewport;
};

void HasExtents(const Subject& s) {
    const auto square = s.NewSquare(10);
    const ExtentsStruct* extents = CALL(s.host, GraphicGetExtentsSel)(square.get(), 0);
    Expect(extents, "gave null");
    const double left = CALL(s.host, ExtentsGetX1)(extents), right = CALL(s.host, ExtentsGetX2)(extents);
    Expect(left == 0 && right == 10, "a square from 0 to 10 goes from %g to %g", left, right);
}

void ExtentsFollowAndHoldParts(const Subject& s) {
    const auto square = s.NewSquare(10);
    CALL(s.host, VertexSet)(s.Vertices(square.get())[1], 15, 0, 0);
    CALL(s.host, GraphicSetExtentsDirty)(square.get(), 1);
    double right = CALL(s.host, ExtentsGetX2)(CALL(s.host, GraphicGetExtentsSel)(square.get(), 0));
    Expect(right == 15, "a vertex moved to 15, and the extents end at %g", right);
    CALL(s.host, GraphicAdd)(square.get(), s.NewSquare(30).release());
    right = CALL(s.host, ExtentsGetX2)(CALL(s.host, GraphicGetExtentsSel)(square.get(), 0));
    Expect(right == 30, "a part reaches to 30, and the extents end at %g", right);
}

void HasExtentsWithoutPoints(const Subject& s) {
    const auto none = s.NewGraphic(kGraphicVertices);
    const ExtentsStruct* extents = CALL(s.host, GraphicGetExtentsSel)(none.get(), 0);
    const double left = CALL(s.host, ExtentsGetX1)(extents), right = CALL(s.host, ExtentsGetX2)(extents);
    Expect(left == 0 && right == 0, "a graphic without a vertex goes from %g to %g, not from 0 to 0", left,
           right);
}

void Draws(const Subject& s) {
    for (const int preview : {0, 1}) {
        const RECT drawn = Scene(s, nullptr, preview).picture.Drawn();
        Expect(drawn.right > drawn.left && drawn.bottom > drawn.top, "with preview %d nothing is drawn",
               preview);
    }
}

void FitsAndCenters(const Subject& s) {
    const RECT drawn = Scene(s).picture.Drawn();
    const double middle = (drawn.left + drawn.right) / 2.0, width = drawn.right - drawn.left,
                 height = drawn.bottom - drawn.top;
    Expect(std::fabs(middle - 100) <= 2, "the middle of what is drawn is %g, that of the rectangle 100",
           middle);
    Expect(std::fabs(width - height) <= 2, "a square is %g by %g pixels", width, height);
    Expect(height > 60 && height <= 82, "it is %g pixels high in a rectangle of 80", height);
}

void StaysInItsRectangle(const Subject& s) {
    const auto factors = s.NewVertex(100, 100, 1);
    const auto larger = s.Own(CALL(s.host, MatrixScale)(nullptr, factors.get(), 0));
    const RECT drawn = Scene(s, larger.get()).picture.Drawn();
    const bool inside = drawn.left >= kRect.left - 1 && drawn.top >= kRect.top - 1 &&
                        drawn.right <= kRect.right && drawn.bottom <= kRect.bottom;
    Expect(inside || drawn.right < drawn.left, "draws from %ld, %ld to %ld, %ld: outside of its rectangle",
           drawn.left, drawn.top, drawn.right, drawn.bottom);
}

void DrawsByTheMatrix(const Subject& s) {
    const auto factors = s.NewVertex(0.5, 0.5, 1);
    const auto half = s.Own(CALL(s.host, MatrixScale)(nullptr, factors.get(), 0));
    const RECT drawn = Scene(s, half.get()).picture.Drawn(), whole = Scene(s).picture.Drawn();
    const double ratio = static_cast<double>(drawn.right - drawn.left) / (whole.right - whole.left);
    Expect(std::fabs(ratio - 0.5) < 0.1, "half the size is drawn %g times as wide", ratio);
    Expect(drawn.bottom >= whole.bottom - 2, "drawn upside down: y grows upwards");
}

void LeavesTheDeviceContext(const Subject& s) {
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
    Expect(before.pen == after.pen && before.brush == after.brush && before.font == after.font,
           "a pen, brush or font of its own is still selected");
    Expect(before.text == after.text && before.background == after.background && before.mode == after.mode &&
               before.rop == after.rop && before.align == after.align,
           "colours or modes are others than before");
    Expect(before.map == after.map && before.origin.x == after.origin.x && before.origin.y == after.origin.y,
           "the mapping is another one than before");
    RECT clip;
    ::GetClipBox(scene.picture.dc, &clip);
    Expect(clip.right - clip.left == kWidth, "the clipping is another one than before");
}

void ClearsThePointer(const Subject& s) {
    ViewportStruct* viewport = s.NewViewport().release();
    CALL(s.host, ViewportDispose)(&viewport);
    Expect(!viewport, "left %p", static_cast<void*>(viewport));
}

constexpr Promise kRows[] = {
    {"GraphicGetExtentsSel", "gives extents, and ExtentsGetX1 and ExtentsGetX2 their ends", HasExtents},
    {"GraphicGetExtentsSel", "follows vertices that have moved, and holds the parts",
     ExtentsFollowAndHoldParts},
    {"ExtentsGetX1", "and ExtentsGetX2 give 0 for extents without a point", HasExtentsWithoutPoints},
    {"ViewportDispose", "clears the pointer", ClearsThePointer},
    {"GraphicDrawEx2", "draws, in a preview and else", Draws},
    {"ViewportSetExtents", "fits into the rectangle, aspect kept, in the middle", FitsAndCenters},
    {"ViewportSetRect", "nothing is drawn outside of the rectangle", StaysInItsRectangle},
    {"GraphicDrawEx2", "transforms by the matrix first", DrawsByTheMatrix},
    {"ViewportSetGDIStuff", "the device context is left as it was", LeavesTheDeviceContext},
};

} // namespace

const Topic kViewPromises = TopicOf(kRows);
