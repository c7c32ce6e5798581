// Requirements of extents, viewports and drawing.

#include <cmath>
#include <cstring>

#include "picture.h"

namespace {

constexpr COLORREF kRed = RGB(255, 0, 0);
constexpr uint16_t kSolidBrush = 1;

MatrixStruct Scaling(double factor) {
    return {{{factor, 0, 0, 0}, {0, factor, 0, 0}, {0, 0, 1, 0}, {0, 0, 0, 1}}};
}

// Draws a black square of ten units, as large as the rectangle permits, and measures it.
Measure DrawSquare(const Subject& s, const MatrixStruct* matrix = nullptr, int preview = 0) {
    const auto square = s.NewSquare(10);
    SetPlainAppearance(s, square.get());
    return Scene(s).Draw(square.get(), matrix, preview).picture.Of();
}

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
    for (const int preview : {0, 1})
        Require(DrawSquare(s, nullptr, preview).count > 0, "nothing is drawn with preview %d", preview);
}

void FitsAndCenters(const Subject& s) {
    const Measure drawn = DrawSquare(s);
    const double middle = (drawn.bounds.left + drawn.bounds.right) / 2.0;
    Require(std::fabs(middle - 100) <= 2, "the drawing is centered at %g instead of 100", middle);
    Require(std::abs(drawn.Width() - drawn.Height()) <= 2, "a square is drawn as %ld by %ld pixels", drawn.Width(),
            drawn.Height());
    Require(drawn.Height() > 60 && drawn.Height() <= 83, "the square is %ld pixels high in a rectangle of 80",
            drawn.Height());
}

void StaysInItsRectangle(const Subject& s) {
    const MatrixStruct larger = Scaling(100);
    const Measure drawn = DrawSquare(s, &larger);
    const RECT& in = drawn.bounds;
    const RECT& limit = Scene::kRect;
    Require(drawn.count == 0 || (in.left >= limit.left - 1 && in.top >= limit.top - 1 && in.right <= limit.right &&
                                 in.bottom <= limit.bottom),
            "drew from %ld, %ld to %ld, %ld, outside the rectangle", in.left, in.top, in.right, in.bottom);
}

void DrawsByTheMatrix(const Subject& s) {
    const MatrixStruct matrix = Scaling(0.5);
    const Measure half = DrawSquare(s, &matrix), whole = DrawSquare(s);
    const double ratio = static_cast<double>(half.Width()) / whole.Width();
    Require(std::fabs(ratio - 0.5) < 0.1, "scaled by 0.5, the drawing is %g times as wide", ratio);
    Require(half.bounds.bottom >= whole.bounds.bottom - 2, "drawn upside down; y grows upward");
}

void DrawsMembers(const Subject& s) {
    const auto set = s.NewGraphic(kGraphicVertices);
    for (const double size : {2, 10}) {
        auto square = s.NewSquare(size);
        SetPlainAppearance(s, square.get());
        CALL(s.host, GraphicAdd)(set.get(), square.release());
    }
    CALL(s.host, GraphicAttach)(set.get(), s.Drawing());
    Scene scene(s);
    scene.Draw(set.get());
    const int inner = scene.picture.Of(Ink::Black, Scene::Area(1, 1, 3, 3)).count;
    const int outer = scene.picture.Of(Ink::Black, Scene::Area(9, 9, 10.5, 10.5)).count;
    Require(inner > 0 && outer > 0, "of two members, %s is drawn", inner > 0 || outer > 0 ? "only one" : "none");
}

void DrawsSegmentsWithTheirFlag(const Subject& s) {
    const auto square = s.NewSquare(10);
    SetPlainAppearance(s, square.get());
    s.Vertices(square.get())[2]->wFlags &= static_cast<uint16_t>(~kVertexDrawn); // the right side
    Scene scene(s);
    scene.Draw(square.get());
    const int right = scene.picture.Of(Ink::Black, Scene::Area(9, 2, 11, 8)).count;
    const int left = scene.picture.Of(Ink::Black, Scene::Area(-1, 2, 1, 8)).count;
    Require(left > 0, "a segment with the flag kVertexDrawn is not drawn");
    Require(right == 0, "a segment without the flag kVertexDrawn is drawn");
}

// The outline is black, so that a filling in its color is noticed.
Measure DrawFilling(const Subject& s, uint16_t style, double scale, Ink ink) {
    const auto square = s.NewSquare(10);
    SetPlainAppearance(s, square.get());
    CALL(s.host, GraphicSetBrushStyle)(square.get(), style);
    CALL(s.host, GraphicSetBrushColor)(square.get(), kRed);
    CALL(s.host, GraphicSetBrushScale)(square.get(), scale);
    return Scene(s).Draw(square.get()).picture.Of(ink, Scene::Area(1, 1, 9, 9));
}

void Fills(const Subject& s) {
    if (s.Entries(s.Table(kTableBrushStyles)).empty()) return; // a drawing without fillings
    constexpr int kInside = 64 * 64;
    const int filled = DrawFilling(s, kSolidBrush, 1, Ink::Red).count;
    Require(filled > kInside * 9 / 10, "%d of %d pixels inside a square with the solid brush have the brush color",
            filled, kInside);
    const int none = DrawFilling(s, kBrushStyleNone, 1, Ink::None).count;
    Require(none == 0, "%d pixels inside a square without a brush are drawn", none);
}

// Checks samples of brushes: outlines of which only some segments or none are drawn.
void FillsOneOutline(const Subject& s) {
    if (s.Entries(s.Table(kTableBrushStyles)).empty()) return;
    const auto square = s.NewSquare(10);
    SetPlainAppearance(s, square.get());
    CALL(s.host, GraphicSetBrushStyle)(square.get(), kSolidBrush);
    CALL(s.host, GraphicSetBrushColor)(square.get(), kRed);
    for (VertexStruct* vertex : s.Vertices(square.get()))
        vertex->wFlags &= static_cast<uint16_t>(~kVertexDrawn);
    square->dwOneOutline = 1;
    Scene scene(s);
    scene.Draw(square.get());
    const int filled = scene.picture.Of(Ink::Red, Scene::Area(1, 1, 9, 9)).count;
    Require(filled > 64 * 64 * 9 / 10, "%d of 4096 pixels inside undrawn segments are filled with dwOneOutline 1",
            filled);
    const int drawn = scene.picture.Of(Ink::Black).count;
    Require(drawn == 0, "%d pixels of undrawn segments are drawn with dwOneOutline 1", drawn);
}

void DrawsNoLine(const Subject& s) {
    const auto square = s.NewSquare(10);
    SetPlainAppearance(s, square.get());
    CALL(s.host, GraphicSetPenStyle)(square.get(), kLineStyleNone);
    const int drawn = Scene(s).Draw(square.get()).picture.Of().count;
    Require(drawn == 0, "%d pixels of an outline are drawn with kLineStyleNone", drawn);
}

// Returns the scale that draws the lines one unit apart.
double ScaleOf(const Subject& s, TableStruct* styles, uint16_t id) {
    int cookie = 0, dashCount;
    double angle, x, y, along, spacing = 1, dashes[8];
    if (const auto* lines = CALL(s.host, BrushStyleGetFirstPattern)(styles, id, &cookie))
        CALL(s.host, BrushPatternGetData)(lines, &angle, &x, &y, &along, &spacing, &dashCount, dashes);
    return 1 / std::fabs(spacing);
}

void DrawsHatches(const Subject& s) {
    TableStruct* styles = s.Table(kTableBrushStyles);
    constexpr uint16_t kHatch = kBrushVector | kBrushHasLines;
    for (const uint16_t id : s.Entries(styles)) {
        if ((CALL(s.host, BrushStyleGetFlags)(styles, id) & kHatch) != kHatch) continue;
        const double scale = ScaleOf(s, styles, id);
        Require(DrawFilling(s, id, scale, Ink::Red).count > 0, "brush style %u draws nothing in the brush color", id);
        const int other = DrawFilling(s, id, scale, Ink::Black).count;
        Require(other == 0, "brush style %u draws %d pixels in the pen color", id, other);
    }
}

// Draws a red text with capital letters that are three units high, at 1, 2 or, rotated by 90 degrees, at 5, 1.
Measure DrawText(const Subject& s, bool isTurned) {
    const auto text = s.NewGraphic(kGraphicText);
    CALL(s.host, GraphicAttach)(text.get(), s.Drawing());
    const auto at = isTurned ? s.NewVertex(5, 1, 0) : s.NewVertex(1, 2, 0);
    char own[] = "HHH";
    const double angle = isTurned ? 1.5707963267948966 : 0;
    RequireNoStub(CALL(s.host, TextSetVWHAEx)(text.get(), at.get(), 0, 3, angle, own), "TextSetVWHAEx");
    std::memset(own, ' ', 3); // the database must have copied the text
    CALL(s.host, GraphicSetPenColor)(text.get(), kRed);
    CALL(s.host, TextExternalJustify)(text.get(), 0);
    return Scene(s).Draw(text.get()).picture.Of(Ink::Red);
}

void DrawsTexts(const Subject& s) {
    const Measure text = DrawText(s, false);
    Require(text.count > 20, "%d pixels of a text have the pen color", text.count);
    const RECT expected = Scene::Area(1, 2, 9, 5);
    Require(std::abs(text.bounds.left - expected.left) <= Scene::kUnit &&
                std::abs(text.bounds.bottom - expected.bottom) <= Scene::kUnit,
            "the text begins at %ld, %ld instead of %ld, %ld", text.bounds.left, text.bounds.bottom, expected.left,
            expected.bottom);
    constexpr LONG kHeight = 3 * Scene::kUnit;
    Require(text.Height() > kHeight * 2 / 3 && text.Height() < kHeight * 4 / 3,
            "capital letters of %ld pixels are %ld pixels high", kHeight, text.Height());
}

void TurnsTexts(const Subject& s) {
    const Measure text = DrawText(s, true);
    Require(text.count > 20 && text.Height() > text.Width(), "a text with an angle of 90 degrees is %ld by %ld pixels",
            text.Width(), text.Height());
}

// Previews draw pens on paper at their full size, regardless of the extents.
void DrawsPensAtTheirWidth(const Subject& s) {
    const auto square = s.NewSquare(10);
    SetPlainAppearance(s, square.get());
    CALL(s.host, GraphicSetScaleSystem)(square.get(), kScalePaper);
    CALL(s.host, GraphicSetPenWidth)(square.get(), 0.1); // inches
    Scene scene(s);
    scene.Draw(square.get(), nullptr, 1);
    const double expected = 0.1 * ::GetDeviceCaps(scene.picture.dc, LOGPIXELSX) / 2; // on the inner side
    const LONG width = scene.picture.Of(Ink::Black, Scene::Area(0, 4, 5, 6)).Width();
    Require(width > expected / 2 && width < expected * 2 + 2,
            "a pen of 0.1 inch is %ld instead of %g pixels wide on the inner side of an outline", width, expected);
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
    const auto square = s.NewSquare(10);
    Scene scene(s);
    scene.Draw(square.get());
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
    Require(clip.right - clip.left == Picture::kWidth, "the clipping region was not restored");
}

void ClearsThePointer(const Subject& s) {
    ViewportStruct* viewport = s.NewViewport().release();
    CALL(s.host, ViewportDispose)(&viewport);
    Require(!viewport, "the pointer is %p afterward", static_cast<void*>(viewport));
}

constexpr Requirement kRows[] = {
    {"GraphicGetExtentsSel", "returns extents, whose edges ExtentsGetX1 and ExtentsGetX2 return", HasExtents},
    {"GraphicGetExtentsSel", "follows moved vertices and includes members", ExtentsFollowVerticesAndMembers},
    {"ExtentsGetX1", "and ExtentsGetX2 return 0 for empty extents", EmptyExtentsAreZero},
    {"ViewportDispose", "sets the pointer to null", ClearsThePointer},
    {"GraphicDrawEx2", "draws the graphic, both with preview 0 and 1", Draws},
    {"ViewportSetExtents", "fits into the rectangle, centered, with the same aspect ratio", FitsAndCenters},
    {"ViewportSetRect", "clips drawing to the rectangle", StaysInItsRectangle},
    {"GraphicDrawEx2", "transforms the graphic by the matrix", DrawsByTheMatrix},
    {"GraphicDrawEx2", "draws the members of a set", DrawsMembers},
    {"GraphicDrawEx2", "draws only segments that end at vertices with kVertexDrawn", DrawsSegmentsWithTheirFlag},
    {"GraphicDrawEx2", "fills with the solid brush in the brush color, and not at all without a brush", Fills},
    {"GraphicDrawEx2", "fills undrawn segments as one outline if dwOneOutline is 1", FillsOneOutline},
    {"GraphicDrawEx2", "draws no outline with the line style kLineStyleNone", DrawsNoLine},
    {"GraphicDrawEx2", "draws hatches in the brush color", DrawsHatches},
    {"GraphicDrawEx2", "draws a text in the pen color, at its position, with its height", DrawsTexts},
    {"GraphicDrawEx2", "draws a text at its angle", TurnsTexts},
    {"GraphicDrawEx2", "draws the width of a pen on paper at full size with preview 1", DrawsPensAtTheirWidth},
    {"ViewportSetGDIStuff", "and drawing do not change the state of the device context", RestoresTheDeviceContext},
};

} // namespace

const Topic kViewRequirements = TopicOf(kRows);
