// Selecting with mouse and keys, and painting the necessary parts only, without artifacts.

#include "demo/viewer.h"

#include <algorithm>

#include "demo/viewer/resource.h"
#include "orlo/host/graphic.h"

namespace {

struct WindowCase {
    const char* name;
    WorldPoint from, to;
    int selected;
};

const WindowCase kWindows[] = {
    {"LeftToRightSelectsContained", {2, 2}, {20, 38}, 2}, {"LeftToRightSkipsCrossed", {2, 2}, {30, 38}, 2},
    {"RightToLeftSelectsCrossed", {30, 38}, {2, 2}, 4},   {"LeftToRightOverNothing", {18, 18}, {22, 22}, 0},
    {"RightToLeftAcrossALine", {32, 8}, {28, 12}, 1},
};

class SelectByWindow : public Viewer, public ::testing::WithParamInterface<WindowCase> {};

TEST_P(SelectByWindow, Selects) {
    Drag(GetParam().from, GetParam().to);
    EXPECT_EQ(GetParam().selected, selection().Count());
}

INSTANTIATE_TEST_SUITE_P(Drawn, SelectByWindow, ::testing::ValuesIn(kWindows),
                         [](const auto& row) { return row.param.name; });

TEST_F(Viewer, ClicksSelectAddAndRemove) {
    const CPoint red = Pixel(10, 5), green = Pixel(10, 35), nothing = Pixel(20, 20);
    user.Click(view(), red);
    EXPECT_EQ(selection().Count(), 1);
    user.Click(view(), green);
    EXPECT_EQ(selection().Count(), 1);
    user.Click(view(), red, UserInput::kShift);
    EXPECT_EQ(selection().Count(), 2);
    user.Click(view(), red, UserInput::kShift); // adds only
    EXPECT_EQ(selection().Count(), 2);
    user.Click(view(), red, UserInput::kControl);
    EXPECT_EQ(selection().Count(), 1);
    user.Click(view(), nothing, UserInput::kControl); // a miss does not change the selection
    EXPECT_EQ(selection().Count(), 1);
    user.Click(view(), nothing);
    EXPECT_EQ(selection().Count(), 0);
}

TEST_F(Viewer, WindowWithControlTogglesItsContents) {
    user.Click(view(), Pixel(10, 5));
    Drag({2, 2}, {20, 38}, UserInput::kControl);
    ASSERT_EQ(selection().Count(), 1);
    EXPECT_FALSE(selection().Contains(document().Selectable()[0]));
    EXPECT_TRUE(selection().Contains(document().Selectable()[1]));
}

TEST_F(Viewer, TabCyclesInBothDirections) {
    const std::vector<GraphicStruct*> all = document().Selectable();
    ASSERT_EQ(all.size(), 4u);
    for (const size_t place : {0, 1, 2, 3, 0}) {
        user.Key(VK_TAB);
        EXPECT_EQ(selection().Members(), std::vector<GraphicStruct*>{all[place]});
    }
    user.Key(VK_TAB, UserInput::kShift);
    EXPECT_EQ(selection().Members(), std::vector<GraphicStruct*>{all[3]});
    user.Key(VK_ESCAPE);
    EXPECT_EQ(selection().Count(), 0);
}

TEST_F(Viewer, TabScrollsTheSelectionIntoView) {
    user.Wheel(view(), Pixel(35, 40), 8);
    user.Key(VK_TAB); // the red line, far outside the view
    EXPECT_TRUE(frame->View().GetCamera().Visible().Contains(WorldBox{9, 4, 11, 6}));
}

TEST_F(Viewer, DeselectingLeavesNoTraces) {
    const std::vector<uint32_t> before = ViewPixels();
    user.Key('A', UserInput::kControl);
    EXPECT_NE(before, ViewPixels());
    user.Key(VK_ESCAPE);
    EXPECT_EQ(before, ViewPixels());
}

TEST_F(Viewer, RubberBandLeavesNoTraces) {
    const std::vector<uint32_t> before = ViewPixels();
    user.Press(view(), Pixel(18, 18));
    user.MoveTo(view(), Pixel(38, 2));
    EXPECT_NE(before, ViewPixels());
    user.MoveTo(view(), Pixel(19, 21));
    user.Release(view(), Pixel(19, 21));
    EXPECT_EQ(before, ViewPixels());
}

TEST_F(Viewer, BackgroundAndLineWeightsCanBeSelected) {
    document().Change([&] { ::GraphicSetPenWidth(document().Selectable()[0], 0.5); });
    const auto choose = [&](UINT command) {
        ::SendMessageA(frame->m_hWnd, WM_COMMAND, command, 0);
        return ViewPixels();
    };
    const auto drawn = [](const std::vector<uint32_t>& pixels) {
        return std::count_if(pixels.begin(), pixels.end(), [&](uint32_t p) { return p != pixels.front(); });
    };
    const std::vector<uint32_t> dark = ViewPixels(), light = choose(ID_VIEW_LIGHT_BACKGROUND);
    EXPECT_EQ(light.front(), 0xFFFFFFu);
    EXPECT_LT(drawn(choose(ID_VIEW_LINE_WEIGHTS)) * 2, drawn(light));
    EXPECT_EQ(choose(ID_VIEW_LINE_WEIGHTS), light);
    EXPECT_EQ(choose(ID_VIEW_DARK_BACKGROUND), dark);
    EXPECT_NE(dark.front(), light.front());
}

TEST_F(Viewer, MovedPictureEqualsARedrawnOne) {
    user.Key('A', UserInput::kControl);
    user.Wheel(view(), Pixel(20, 20), 3);
    for (const UINT key : {VK_LEFT, VK_UP, VK_UP, VK_RIGHT, VK_RIGHT, VK_DOWN}) {
        user.Key(key);
        user.PanDrag(view(), CPoint(300, 300), CPoint(287, 322));
        const std::vector<uint32_t> moved = ViewPixels();
        frame->View().Redraw();
        EXPECT_EQ(ViewPixels(), moved) << "after key " << key;
    }
}

// Too much to draw for each frame: the picture is moved, and redrawn when the movement ends.
TEST_F(Viewer, LargeDrawingIsExactAtRest) {
    constexpr int kSide = 400;
    std::string lines = "0\nSECTION\n2\nENTITIES\n";
    for (int i = 0; i < kSide * kSide; ++i) {
        const std::string x = std::to_string(i % kSide), y = std::to_string(i / kSide);
        lines += "0\nLINE\n8\n0\n62\n" + std::to_string(i % 6 + 1) + "\n10\n" + x + "\n20\n" + y + "\n11\n" + x +
                 ".7\n21\n" + y + ".4\n";
    }
    const DrawingFile large((lines + "0\nENDSEC\n0\nEOF\n").c_str());
    ASSERT_TRUE(frame->Open(large.Path()));
    user.Wait(0);
    user.Wheel(view(), Pixel(100, 100), 2);
    user.PanDrag(view(), CPoint(300, 300), CPoint(287, 322));
    user.Wheel(view(), Pixel(120, 130), -1);
    user.Key(VK_LEFT);
    const std::vector<uint32_t> moved = ViewPixels();
    frame->View().Redraw();
    EXPECT_EQ(ViewPixels(), moved);
}

} // namespace
