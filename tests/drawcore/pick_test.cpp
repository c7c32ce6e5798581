// Selecting by point and by window, zooming, panning, highlighting.

#include <gtest/gtest.h>

#include <cmath>

#include <drawcore/graphic.h>
#include <drawcore/layer.h>

#include "drawcore/kit.h"

namespace {

class Pick : public testing::Test {
protected:
    GraphicStruct* At(int x, int y, int tolerance = 3, uint32_t filter = kAllGraphics) {
        return ViewportPick(picture.Viewport(), drawing.Root(), {x, 100 - y}, tolerance, filter);
    }
    // Returns the members within a rectangle of drawing units in drawing order.
    std::vector<GraphicStruct*> Within(int left, int bottom, int right, int top, int crossing) {
        const TestGraphic selection(SelectionNew());
        const RECT rect = {left, 100 - top, right, 100 - bottom};
        const int added =
            ViewportPickWindow(picture.Viewport(), drawing.Root(), &rect, crossing, 0xFFFFFFFF, selection);
        EXPECT_EQ(added, SelectionCount(selection));
        return Members(selection);
    }

    OwnDrawing drawing;
    Picture picture{drawing};
};

using List = std::vector<GraphicStruct*>;

TEST_F(Pick, FindsTheTopmostNearby) {
    GraphicStruct* first = drawing.Add(MakeLines({{10, 50}, {90, 50}}));
    GraphicStruct* second = drawing.Add(MakeLines({{50, 10}, {50, 90}}));
    EXPECT_EQ(At(30, 50), first);
    EXPECT_EQ(At(30, 53), first);
    EXPECT_EQ(At(30, 54), nullptr);
    EXPECT_EQ(At(30, 54, 5), first);
    EXPECT_EQ(At(50, 50), second) << "both: the topmost one";
    EXPECT_EQ(At(94, 50), nullptr) << "beyond the end";
    EXPECT_EQ(At(50, 50, 3, kKindCurve), nullptr);
    EXPECT_EQ(ViewportPick(nullptr, drawing.Root(), {0, 0}, 3, 0), nullptr);
}

TEST_F(Pick, FitsVisibleGraphics) {
    TableStruct* layers = drawing.Table(kTableLayers);
    const uint16_t hidden = TableEntryAdd(layers, "hidden", nullptr);
    GraphicStruct* close = drawing.Add(MakeLines({{10, 10}, {20, 20}}));
    GraphicStruct* distant = drawing.Add(MakeLines({{10, 10}, {1000, 10}}));
    SetInteger(distant, kPropLayer, hidden);
    const auto width = [&] { // of the visible area, in drawing units
        ViewportFitVisible(picture.Viewport(), drawing.Root());
        double left, right, y;
        ViewportToDrawing(picture.Viewport(), {0, 0}, &left, &y);
        ViewportToDrawing(picture.Viewport(), {100, 0}, &right, &y);
        return right - left;
    };
    EXPECT_NEAR(width(), 990, 1);
    LayerSet(drawing, hidden, 0, kLayerOff, 0);
    EXPECT_NEAR(width(), 10, 0.1);
    SetInteger(close, kPropLayer, hidden);
    EXPECT_NEAR(width(), 990, 1) << "nothing is visible at its place";
}

TEST_F(Pick, CountsWidthsAndFilledAreas) {
    GraphicStruct* wide = drawing.Add(MakeLines({{10, 80}, {90, 80}}));
    SetInteger(wide, kPropScaleSystem, 0);
    SetReal(wide, kPropPenWidth, 20);
    GraphicStruct* hollow = drawing.Add(MakeSquare(10, 10, 20));
    GraphicStruct* filled = drawing.Add(MakeSquare(60, 10, 20));
    SetInteger(filled, kPropBrushStyle, 1);
    EXPECT_EQ(At(50, 89), wide);
    EXPECT_EQ(At(20, 20), nullptr);
    EXPECT_EQ(At(10, 20), hollow);
    EXPECT_EQ(At(70, 20), filled);
    EXPECT_EQ(At(50, 20), nullptr);
}

TEST_F(Pick, FindsTextsByTheirBoxAndInsertionsAsAWhole) {
    GraphicStruct* text = drawing.Add(MakeText("i i i", {10, 80}, 10, 0, 60));
    EXPECT_EQ(At(40, 85), text);
    EXPECT_EQ(At(40, 60), nullptr);
    const uint16_t block = BlocksAddBlock(drawing.Table(kTableBlocks), "B", MakeSquare(0, 0, 20));
    GraphicStruct* insert = drawing.Add(MakeInsert(drawing.Table(kTableBlocks), block, {30, 30}, 1, 1));
    EXPECT_EQ(At(50, 40), insert);
    EXPECT_EQ(At(40, 40), nullptr);
}

TEST_F(Pick, SkipsHiddenAndLockedLayers) {
    for (const uint32_t flag : {kLayerOff, kLayerFrozen, kLayerLocked}) {
        GraphicStruct* line = drawing.Add(MakeLines({{10, 50}, {90, 50}}));
        const uint16_t layer = TableEntryAdd(drawing.Table(kTableLayers), std::to_string(flag).c_str(), nullptr);
        SetInteger(line, kPropLayer, layer);
        EXPECT_EQ(At(50, 50), line);
        LayerSet(drawing, layer, 0, flag, 0);
        EXPECT_EQ(At(50, 50), nullptr) << flag;
        EXPECT_TRUE(Within(0, 0, 100, 100, 1).empty()) << flag;
    }
}

TEST_F(Pick, ByWindowSelectsContainedByCrossingTouchedGraphics) {
    GraphicStruct* inside = drawing.Add(MakeSquare(20, 20, 10));
    GraphicStruct* across = drawing.Add(MakeLines({{0, 25}, {100, 25}}));
    GraphicStruct* outside = drawing.Add(MakeSquare(80, 80, 10));
    GraphicStruct* around = drawing.Add(MakeSquare(5, 5, 60));
    EXPECT_EQ(Within(15, 15, 40, 40, 0), List{inside});
    EXPECT_EQ(Within(15, 15, 40, 40, 1), (List{inside, across}));
    EXPECT_EQ(Within(0, 0, 100, 100, 0), (List{inside, across, outside, around}));
    EXPECT_TRUE(Within(40, 40, 50, 50, 1).empty()) << "inside an outline without touching it";
    SetInteger(around, kPropBrushStyle, 1);
    EXPECT_EQ(Within(40, 40, 50, 50, 1), List{around}) << "within a filled area";
    EXPECT_EQ(Within(40, 40, 15, 15, 0), List{inside}) << "corners in any order";
}

TEST_F(Pick, FollowsZoomAndPan) {
    GraphicStruct* line = drawing.Add(MakeLines({{50, 50}, {50, 52}}));
    double x, y;
    ViewportZoom(picture.Viewport(), {50, 50}, 10);
    ViewportToDrawing(picture.Viewport(), {50, 50}, &x, &y);
    EXPECT_NEAR(x, 50, 1e-9);
    EXPECT_NEAR(y, 50, 1e-9);
    EXPECT_EQ(ViewportPick(picture.Viewport(), drawing.Root(), {50, 35}, 1, 0), line);
    ViewportPan(picture.Viewport(), 30, -10);
    EXPECT_EQ(ViewportPick(picture.Viewport(), drawing.Root(), {80, 25}, 1, 0), line);
    ViewportToDrawing(picture.Viewport(), {80, 40}, &x, &y);
    EXPECT_NEAR(x, 50, 1e-9);
    EXPECT_NEAR(y, 50, 1e-9);
    for (const double factor : {0.0, -1.0, static_cast<double>(NAN), HUGE_VAL})
        ViewportZoom(picture.Viewport(), {0, 0}, factor);
    for (int i = 0; i < 200; ++i)
        ViewportZoom(picture.Viewport(), {0, 0}, 10);
    ViewportToDrawing(picture.Viewport(), {80, 40}, &x, &y);
    EXPECT_TRUE(std::isfinite(x));
}

} // namespace
