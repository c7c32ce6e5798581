// Painting, checked pixel by pixel at one pixel per drawing unit.

#include <gtest/gtest.h>

#include <climits>
#include <cmath>

#include <drawcore/application.h>
#include <drawcore/layer.h>

#include "drawcore/kit.h"

namespace {

constexpr COLORREF kRed = RGB(255, 0, 0), kBlue = RGB(0, 0, 255), kBlack = 0, kWhite = RGB(255, 255, 255);

class Paint : public testing::Test {
protected:
    GraphicStruct* Line(double x1, double y1, double x2, double y2) {
        GraphicStruct* line = drawing.Add(MakeLines({{x1, y1}, {x2, y2}}));
        SetInteger(line, kPropPenColor, kRed);
        return line;
    }
    void Draw() { picture.Draw(drawing.Root()); }

    OwnDrawing drawing;
    Picture picture{drawing};
};

TEST_F(Paint, ThinLineCoversItsPixelsIncludingBothEnds) {
    Line(10, 20, 30, 20);
    Line(50, 10, 50, 40);
    Draw();
    EXPECT_EQ(picture.Covered(), 21 + 31);
    for (int x = 10; x <= 30; ++x)
        EXPECT_EQ(picture.At(x, 20), kRed);
    for (int y = 10; y <= 40; ++y)
        EXPECT_EQ(picture.At(50, y), kRed);
}

TEST_F(Paint, WidthsAreDrawingUnitsOrInchesOfPaper) {
    const int dpi = ::GetDeviceCaps(picture.DC(), LOGPIXELSX);
    GraphicStruct* world = Line(10, 30, 90, 30);
    SetInteger(world, kPropScaleSystem, 0);
    SetReal(world, kPropPenWidth, 8);
    GraphicStruct* paper = Line(10, 70, 90, 70);
    SetReal(paper, kPropPenWidth, 6.0 / dpi);
    Draw();
    EXPECT_EQ(picture.Covered(50, 20, 50, 40), 8);
    EXPECT_EQ(picture.Covered(50, 60, 50, 80), 6);
    EXPECT_EQ(picture.Covered(0, 20, 9, 40), 0) << "flat end";
    // Zoomed in by 2: the width in drawing units grows, the plotter's pen does not.
    ViewportZoom(picture.Viewport(), {50, 50}, 2);
    Draw();
    EXPECT_EQ(picture.Covered(50, 0, 50, 40), 16);
    EXPECT_EQ(picture.Covered(50, 60, 50, 100), 6);
}

TEST_F(Paint, WideOutlineIsClosed) {
    GraphicStruct* square = drawing.Add(MakeSquare(20, 20, 60));
    SetInteger(square, kPropScaleSystem, 0);
    SetReal(square, kPropPenWidth, 10);
    Draw();
    for (const int x : {18, 82})
        for (const int y : {18, 82})
            EXPECT_EQ(picture.At(x, y), picture.At(50, 20)) << x << " " << y;
    EXPECT_NE(picture.At(50, 20), kWhite);
}

TEST_F(Paint, ColorsComeFromGraphicLayerAndBackground) {
    const uint16_t layer = TableEntryAdd(drawing.Table(kTableLayers), "Blue", nullptr);
    LayerSet(drawing, layer, kBlue, 0, 0);
    const struct {
        uint32_t color;
        uint16_t layer;
        COLORREF seen;
    } kRows[] = {{kRed, layer, kRed},
                 {kColorByLayer, layer, kBlue},
                 {kColorByLayer, 1, kBlack},
                 {kColorByBlock, layer, kBlack},
                 {kWhite, 1, kBlack}};
    int y = 10;
    for (const auto& row : kRows) {
        GraphicStruct* line = Line(10, y, 90, y);
        SetInteger(line, kPropPenColor, row.color);
        SetInteger(line, kPropLayer, row.layer);
        y += 10;
    }
    Draw();
    y = 10;
    for (const auto& row : kRows) {
        EXPECT_EQ(picture.At(50, y), row.seen) << y;
        y += 10;
    }
    // White is visible on the layer's black background, and black is not.
    ViewportSetBackground(picture.Viewport(), kBlack);
    picture.Draw(drawing.Root(), 0, kBlack);
    EXPECT_EQ(picture.At(50, 50), kWhite);
    EXPECT_EQ(picture.At(50, 30), kWhite);
    EXPECT_EQ(picture.At(50, 10), kRed);
    const COLORREF blue = picture.At(50, 20);
    EXPECT_GT(GetGValue(blue), 50) << "lighter, so that it can be read";
    EXPECT_EQ(RGB(GetGValue(blue), GetGValue(blue), 255), blue);
}

TEST_F(Paint, LightColorsAreDarkenedOnALightBackground) {
    constexpr COLORREF kYellow = RGB(255, 255, 0), kCyan = RGB(0, 255, 255);
    GraphicStruct* sample = Line(10, 10, 90, 10);
    SetInteger(sample, kPropPenColor, kYellow);
    Draw();
    EXPECT_EQ(picture.At(50, 10), kYellow) << "a sample, for which no background was set, keeps its color";
    ViewportSetBackground(picture.Viewport(), kWhite);
    for (const COLORREF color : {kYellow, kCyan, kRed}) {
        GraphicStruct* line = Line(10, 10, 90, 10);
        SetInteger(line, kPropPenColor, color);
        Draw();
        const COLORREF seen = picture.At(50, 10);
        if (color == kRed) {
            EXPECT_EQ(seen, kRed) << "can be read unchanged";
            continue;
        }
        const int part = GetGValue(seen);
        EXPECT_LT(part, 190);
        EXPECT_GT(part, 100) << "darker, not black";
        EXPECT_EQ(seen, color == kYellow ? RGB(part, part, 0) : RGB(0, part, part));
    }
}

TEST_F(Paint, HiddenLayersAreNotDrawn) {
    for (const uint32_t flag : {kLayerOff, kLayerFrozen, kLayerLocked}) {
        const uint16_t layer = TableEntryAdd(drawing.Table(kTableLayers), std::to_string(flag).c_str(), nullptr);
        LayerSet(drawing, layer, kBlue, flag, 0);
        SetInteger(Line(10, 10.0 * flag, 90, 10.0 * flag), kPropLayer, layer);
    }
    Draw();
    EXPECT_EQ(picture.Covered(0, 0, 100, 25), 0);
    EXPECT_EQ(picture.Covered(0, 26, 100, 100), 81) << "a locked layer is drawn";
    LayerSet(drawing, 1, kBlue, kLayerOff, 0);
    Draw();
    EXPECT_EQ(picture.Covered(), 81) << "the root group is on no layer";
}

class Dashes : public Paint {
protected:
    uint16_t Style(std::initializer_list<double> items) {
        const std::string name = "style" + std::to_string(++count);
        return LineStyleAdd(drawing.Table(kTableLineStyles), name.c_str(), "", items.begin(),
                            static_cast<int>(items.size()));
    }
    // Returns the lengths of runs along row y from x = 10, starting with a covered one.
    std::vector<int> Runs(int y, int right = 90) {
        std::vector<int> runs;
        bool covered = true;
        int length = 0;
        for (int x = 10; x <= right; ++x) {
            const bool now = picture.At(x, y) != kWhite;
            if (now != covered) {
                runs.push_back(length);
                length = 0;
                covered = now;
            }
            ++length;
        }
        runs.push_back(length);
        return runs;
    }
    int count = 0;
};

TEST_F(Dashes, HaveTheLengthsOfThePatternTimesThePenScale) {
    GraphicStruct* line = Line(10, 50, 90, 50);
    SetInteger(line, kPropPenStyle, Style({4, -2}));
    SetReal(line, kPropPenScale, 2);
    SetInteger(line, kPropPenAlignment, 0);
    SetInteger(line, kPropScaleSystem, 0);
    SetReal(line, kPropPenWidth, 3); // a thick pen does not extend the dashes
    Draw();
    EXPECT_EQ(Runs(50), (std::vector<int>{8, 4, 8, 4, 8, 4, 8, 4, 8, 4, 8, 4, 8, 1}));
}

TEST_F(Dashes, AreFittedSoThatBothEndsAreDrawn) {
    GraphicStruct* line = Line(10, 50, 85, 50); // length 75: six periods of 12 and a rest of 3
    SetInteger(line, kPropPenStyle, Style({8, -4}));
    SetInteger(line, kPropPenAlignment, 1);
    SetInteger(line, kPropScaleSystem, 0);
    SetReal(line, kPropPenWidth, 2);
    Draw();
    const std::vector<int> runs = Runs(50, 84);
    ASSERT_EQ(runs.size(), 13u);
    EXPECT_NEAR(runs.front(), 5.5, 1) << "half of dash and rest";
    EXPECT_NEAR(runs.back(), 5.5, 1);
    for (size_t i = 1; i + 1 < runs.size(); ++i)
        EXPECT_NEAR(runs[i], i % 2 ? 4 : 8, 1) << i;
}

TEST_F(Dashes, ShowDotsAndOmitShortAndFinePatterns) {
    GraphicStruct* dots = Line(10, 80, 90, 80);
    SetInteger(dots, kPropPenStyle, Style({0, -5}));
    GraphicStruct* shorter = Line(10, 50, 20, 50);
    SetInteger(shorter, kPropPenStyle, Style({8, -4})); // fitted: too short for a period
    GraphicStruct* fine = Line(10, 20, 90, 20);
    SetInteger(fine, kPropPenStyle, Style({0.5, -0.5}));
    Draw();
    EXPECT_NEAR(picture.Covered(0, 75, 100, 85), 17, 1);
    EXPECT_NEAR(picture.Covered(0, 45, 100, 55), 11, 1);
    EXPECT_EQ(picture.Covered(0, 15, 100, 25), 81);
}

TEST_F(Dashes, ComeFromTheLayerAndStyleZeroDrawsNothing) {
    const uint16_t layer = TableEntryAdd(drawing.Table(kTableLayers), "Dashed", nullptr);
    LayerSet(drawing, layer, kBlue, 0, Style({10, -10}));
    GraphicStruct* line = Line(10, 50, 90, 50);
    SetInteger(line, kPropLayer, layer);
    SetInteger(line, kPropPenStyle, 65534);
    SetInteger(Line(10, 20, 90, 20), kPropPenStyle, 0);
    GraphicStruct* dangling = Line(10, 80, 90, 80);
    SetInteger(dangling, kPropPenStyle, 999); // a missing style is solid
    Draw();
    EXPECT_NEAR(picture.Covered(0, 45, 100, 55), 41, 2);
    EXPECT_EQ(picture.Covered(0, 15, 100, 25), 0);
    EXPECT_EQ(picture.Covered(0, 75, 100, 85), 81);
}

TEST_F(Dashes, AreNotComputedFarOutsideTheView) {
    GraphicStruct* line = Line(-1e9, 50, 1e9, 50);
    SetInteger(line, kPropPenStyle, Style({5, -5}));
    SetInteger(line, kPropPenAlignment, 0);
    Draw();
    EXPECT_NEAR(picture.Covered(), 55, 6);
}

TEST_F(Paint, FillsFollowTheDrawMode) {
    // Two overlapping squares, each in one stroke.
    for (const uint32_t mode : {0u, 1u}) {
        const TestGraphic shape(MakeLines({{10, 10},
                                           {60, 10},
                                           {60, 60},
                                           {10, 60},
                                           {10, 10},
                                           {40, 40, false},
                                           {90, 40},
                                           {90, 90},
                                           {40, 90},
                                           {40, 40}}));
        SetInteger(shape, kPropBrushStyle, 1);
        SetInteger(shape, kPropBrushColor, kBlue);
        SetInteger(shape, kPropBrushDrawMode, mode);
        SetInteger(shape, kPropPenStyle, 0);
        picture.Draw(shape);
        EXPECT_EQ(picture.At(20, 20), kBlue);
        EXPECT_EQ(picture.At(80, 80), kBlue);
        EXPECT_EQ(picture.At(50, 50), mode ? kBlue : kWhite);
        EXPECT_EQ(picture.At(30, 80), kWhite);
    }
}

TEST_F(Paint, OneOutlineGoesThroughUndrawnSegments) {
    const TestGraphic shape(
        MakeLines({{10, 10}, {10, 90}, {0, 100, false}, {10, 90, false}, {90, 90}, {90, 10}, {10, 10}}));
    SetInteger(shape, kPropBrushStyle, 1);
    SetInteger(shape, kPropBrushColor, kColorOfPen);
    SetInteger(shape, kPropPenColor, kRed);
    shape->dwOneOutline = 1;
    picture.Draw(shape);
    EXPECT_EQ(picture.At(50, 50), kRed) << "filled in the pen's color";
    EXPECT_EQ(picture.At(5, 95), kWhite) << "the detour has no line";
    EXPECT_EQ(picture.Covered(), 81 * 81);
}

TEST_F(Paint, HatchesHaveTheirSpacingAndStayInside) {
    const TestGraphic square(MakeSquare(10, 10, 80));
    SetInteger(square, kPropPenStyle, 0);
    SetInteger(square, kPropBrushColor, kBlue);
    SetReal(square, kPropBrushScale, 10);
    const auto rows = [&](uint16_t style, double angle, int cross) {
        SetInteger(square, kPropBrushStyle, style);
        SetReal(square, kPropBrushAngle, angle);
        SetInteger(square, kPropHatchCross, cross);
        picture.Draw(square);
        EXPECT_EQ(picture.Covered(), picture.Covered(10, 10, 90, 90)) << "nothing outside";
        return std::pair(picture.Covered(55, 10, 55, 90), picture.Covered(10, 55, 90, 55));
    };
    const uint16_t horizontal = TableEntryGetIDFirst(drawing.Table(kTableBrushStyles), nullptr, "Horizontal");
    EXPECT_NEAR(rows(horizontal, 0, 0).first, 8, 1);
    EXPECT_EQ(rows(horizontal, 0, 0).second, 0);
    EXPECT_NEAR(rows(horizontal, 1.5707963267948966, 0).second, 8, 1) << "rotated";
    EXPECT_NEAR(rows(horizontal, 0, 1).second, 8, 1) << "crossed";
}

TEST_F(Paint, BitmapsTileAndTakeTheBrushColorOrTheirOwn) {
    const TestGraphic square(MakeSquare(10, 10, 79));
    SetInteger(square, kPropPenStyle, 0);
    SetInteger(square, kPropBrushColor, kBlue);
    TableStruct* styles = drawing.Table(kTableBrushStyles);
    const auto draw = [&](const char* style) {
        SetInteger(square, kPropBrushStyle, TableEntryGetIDFirst(styles, nullptr, style));
        picture.Draw(square);
        EXPECT_EQ(picture.Covered(), picture.Covered(10, 10, 89, 89)) << "nothing outside";
        return picture.Covered(16, 16, 79, 79) / 4096.0; // whole tiles
    };
    EXPECT_DOUBLE_EQ(draw("Dots 25%"), 0.25);
    EXPECT_DOUBLE_EQ(draw("Dots 75%"), 0.75);
    EXPECT_DOUBLE_EQ(draw("Brick bitmap"), 1.0) << "its own background covers everything";
    EXPECT_NE(picture.At(50, 50), kBlue);
    draw("Dots 50%");
    int blue = 0;
    for (int x = 20; x < 28; ++x)
        blue += picture.At(x, 50) == kBlue;
    EXPECT_EQ(blue, 4);
}

TEST_F(Paint, LineOfManyPiecesEqualsOneOfFew) {
    const TestGraphic circle(GraphicNewEx(kGraphicPenBrush, 0, 1)); // unit circle
    picture.Draw(circle);
    ViewportSetExtents(picture.Viewport(), GraphicGetExtentsSel(circle, 0), kFitWhole);
    picture.Draw(circle);
    for (int degrees = 0; degrees < 360; ++degrees) {
        const double x = 50 + 50 * std::cos(degrees * 0.0174532925), y = 50 + 50 * std::sin(degrees * 0.0174532925);
        const int cx = static_cast<int>(std::lround(x)), cy = static_cast<int>(std::lround(y));
        EXPECT_GT(picture.Covered(cx - 1, cy - 1, cx + 1, cy + 1), 0) << degrees;
    }
    EXPECT_EQ(picture.Covered(20, 20, 80, 80), 0);
}

// Coordinates that no device accepts: far out of range, or not numbers.
TEST_F(Paint, SurvivesDistantCoordinates) {
    for (const double distance : {1e5, 1e9, 1e15, 1e100, 1e300}) {
        const TestGraphic shape(MakeLines({{-distance, -distance},
                                           {distance, -distance},
                                           {distance, distance},
                                           {-distance, distance},
                                           {-distance, -distance}}));
        SetInteger(shape, kPropBrushStyle, 1);
        SetInteger(shape, kPropBrushColor, kBlue);
        picture.Draw(shape);
        // Beyond that, a double is too coarse to place an edge in the view.
        if (distance <= 1e15) {
            EXPECT_EQ(picture.Covered(), 101 * 101) << distance << ": the view is inside";
        }
        const TestGraphic line(MakeLines({{-distance, 50}, {distance, 50}}));
        picture.Draw(line);
        if (distance <= 1e15) {
            EXPECT_EQ(picture.Covered(), 101) << distance;
        }
    }
    for (const double none : {static_cast<double>(NAN), HUGE_VAL}) {
        const TestGraphic line(MakeLines({{10, 10}, {none, 50}, {90, 90}}));
        picture.Draw(line);
        EXPECT_EQ(picture.Covered(), 0);
    }
}

// At this size, a unit of the font is larger than a pixel.
TEST_F(Paint, LargeLettersMoveWithTheirPosition) {
    const auto leftEdge = [&](double x) {
        GraphicStruct* text = drawing.Add(MakeText("l", {x, -300}, 900));
        Draw();
        GraphicDelete(drawing.Root(), text);
        GraphicDispose(&text);
        int pixel = 0;
        while (pixel < 100 && picture.Covered(pixel, 50, pixel, 50) == 0)
            ++pixel;
        return pixel;
    };
    for (double x = -59.95; x < -59; x += 0.1)
        for (const int by : {3, 7, 12})
            EXPECT_EQ(leftEdge(x + by), leftEdge(x) + by) << "from " << x;
    EXPECT_LT(leftEdge(-60), 60) << "it is in the picture";
}

TEST_F(Paint, PreservesTheDeviceContext) {
    SetInteger(Line(0, 0, 100, 100), kPropPenStyle,
               LineStyleAdd(drawing.Table(kTableLineStyles), "D", "", std::vector<double>{5, -5}.data(), 2));
    GraphicStruct* square = drawing.Add(MakeSquare(20, 20, 40));
    SetInteger(square, kPropBrushStyle, 1);
    drawing.Add(MakeText("Text", {10, 10}, 10, 0.5));
    HDC dc = picture.DC();
    ::SetTextAlign(dc, TA_RIGHT);
    ::SetBkMode(dc, OPAQUE);
    ::SetROP2(dc, R2_XORPEN);
    const HGDIOBJ objects[] = {::GetCurrentObject(dc, OBJ_PEN), ::GetCurrentObject(dc, OBJ_BRUSH),
                               ::GetCurrentObject(dc, OBJ_FONT)};
    Draw();
    EXPECT_GT(picture.Covered(), 1000);
    EXPECT_EQ(::GetCurrentObject(dc, OBJ_PEN), objects[0]);
    EXPECT_EQ(::GetCurrentObject(dc, OBJ_BRUSH), objects[1]);
    EXPECT_EQ(::GetCurrentObject(dc, OBJ_FONT), objects[2]);
    EXPECT_EQ(::GetTextAlign(dc), static_cast<UINT>(TA_RIGHT));
    EXPECT_EQ(::GetBkMode(dc), OPAQUE);
    EXPECT_EQ(::GetROP2(dc), R2_XORPEN);
    EXPECT_EQ(::GetGraphicsMode(dc), GM_COMPATIBLE);
    EXPECT_EQ(::GetMapMode(dc), MM_TEXT);
    RECT clip;
    EXPECT_EQ(::GetClipBox(dc, &clip), SIMPLEREGION);
    EXPECT_EQ(clip.right, 101);
}

TEST_F(Paint, StaysInTheRectangle) {
    GraphicStruct* line = Line(0, 50, 100, 50);
    SetInteger(line, kPropScaleSystem, 0);
    SetReal(line, kPropPenWidth, 30);
    const RECT half = {20, 45, 60, 55};
    ViewportSetRect(picture.Viewport(), &half);
    Draw();
    EXPECT_GT(picture.Covered(), 300);
    EXPECT_EQ(picture.Covered(), picture.Bits().Count(half, kRed));
}

TEST_F(Paint, ExtentsAreFittedCenteredWithTheirAspectRatio) {
    const RECT wide = {0, 0, 101, 51};
    ViewportSetRect(picture.Viewport(), &wide);
    const TestGraphic square(MakeSquare(1000, 1000, 2));
    ViewportSetExtents(picture.Viewport(), GraphicGetExtentsSel(square, 0), kFitWhole);
    picture.Draw(square);
    EXPECT_EQ(picture.Bits().At(25, 10), kBlack);
    EXPECT_EQ(picture.Bits().At(75, 10), kBlack);
    EXPECT_EQ(picture.Bits().At(50, 0), kBlack);
    EXPECT_EQ(picture.Bits().At(50, 50), kBlack);
    EXPECT_EQ(picture.Covered(), 200);
    const TestGraphic elsewhere(MakeSquare(0, 0, 9));
    ViewportSetExtents(picture.Viewport(), GraphicGetExtentsSel(elsewhere, 0), 0);
    picture.Draw(square);
    EXPECT_EQ(picture.Covered(), 200) << "only kFitWhole is a way to fit";
    // Without height, without extents, or empty: the picture is still drawn, centered.
    const TestGraphic flat(MakeLines({{0, 7}, {4, 7}}));
    ViewportSetExtents(picture.Viewport(), GraphicGetExtentsSel(flat, 0), kFitWhole);
    picture.Draw(flat);
    EXPECT_EQ(picture.Covered(), 101);
    EXPECT_EQ(picture.Bits().At(0, 25), kBlack);
    const TestGraphic point(MakeLines({{3, 3}}));
    ViewportSetExtents(picture.Viewport(), GraphicGetExtentsSel(point, 0), kFitWhole);
    picture.Draw(point);
    EXPECT_EQ(picture.Covered(), 1) << "a point is a dot";
    EXPECT_EQ(picture.Bits().At(50, 25), kBlack);
    const TestGraphic nothing(GraphicNewEx(kGraphicVertices, 0, 1));
    ViewportSetExtents(picture.Viewport(), GraphicGetExtentsSel(nothing, 0), kFitWhole);
    picture.Draw(nothing);
    EXPECT_EQ(picture.Covered(), 0);
}

TEST_F(Paint, PreviewsShowPensAtFullSize) {
    // A sample in the unit square, scaled to 100 pixels; dashes and widths have their size on paper.
    const double inch = ::GetDeviceCaps(picture.DC(), LOGPIXELSX), millimeter = inch / 25.4;
    const TestGraphic sample(MakeLines({{0, 0.5}, {1, 0.5}}));
    GraphicAttach(sample, drawing);
    ViewportSetExtents(picture.Viewport(), GraphicGetExtentsSel(sample, 0), kFitWhole);
    SetInteger(sample, kPropPenColor, kRed);
    SetInteger(sample, kPropScaleSystem, 0);
    SetReal(sample, kPropPenWidth, 2); // millimeters, the drawing's unit
    picture.Draw(sample, 1);
    EXPECT_NEAR(picture.Covered(50, 0, 50, 100), 2 * millimeter, 1);
    SetReal(sample, kPropPenWidth, 1000);
    picture.Draw(sample, 1);
    EXPECT_NEAR(picture.Covered(50, 0, 50, 100), 12.5, 1) << "never more than an eighth of the pane";
    SetReal(sample, kPropPenWidth, 0);
    SetInteger(sample, kPropPenAlignment, 0);
    const double dashes[] = {3, -3};
    SetInteger(sample, kPropPenStyle, LineStyleAdd(drawing.Table(kTableLineStyles), "D", "", dashes, 2));
    picture.Draw(sample, 1);
    int changes = 0;
    for (int x = 1; x <= 100; ++x)
        changes += (picture.At(x, 50) == kRed) != (picture.At(x - 1, 50) == kRed);
    EXPECT_NEAR(changes, 100 / (3 * millimeter), 1.5);
    AppStruct* application = AppGetCurrentApp();
    long before = 0;
    TableGetIntVar(application->pVariables, kVarPreviewBackground, &before);
    TableSetIntVar(application->pVariables, kVarPreviewBackground, 0);
    SetInteger(sample, kPropPenColor, 0);
    picture.Draw(sample, 1, kBlack);
    EXPECT_EQ(picture.At(1, 50), kWhite) << "black is visible on a black pane";
    TableSetIntVar(application->pVariables, kVarPreviewBackground, before);

    const uint16_t layer = TableEntryAdd(drawing.Table(kTableLayers), "Walls", nullptr);
    TableSetIntVar(application->pVariables, kVarPreviewLayer, layer);
    SetInteger(sample, kPropPenColor, kColorByLayer);
    for (const uint32_t flags : {uint32_t{0}, uint32_t{kLayerOff}}) {
        LayerSet(drawing, layer, kBlue, flags, 0);
        picture.Draw(sample, 1);
        EXPECT_EQ(picture.At(1, 50), flags ? kBlack : kBlue) << "a hidden layer does not hide the preview";
    }
    TableSetIntVar(application->pVariables, kVarPreviewLayer, 0);
}

} // namespace
