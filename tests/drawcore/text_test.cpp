// Texts: size, justification, effects, rotation, and extents.

#include <gtest/gtest.h>

#include <cmath>

#include "drawcore/kit.h"
#include "drawcore/src/graphics/text_graphic.h"

namespace {

class Texts : public testing::Test {
protected:
    GraphicStruct* Text(const char* string, double x, double y, double height, double angle = 0, double width = 0) {
        return drawing.Add(MakeText(string, {x, y}, height, angle, width));
    }
    void Draw() { picture.Draw(drawing.Root()); }
    double Width(GraphicStruct* text) { return BoxOf(text).right - BoxOf(text).left; }

    OwnDrawing drawing;
    Picture picture{drawing};
};

TEST_F(Texts, HaveTheHeightOfTheirCapitals) {
    Text("HHH", 20, 30, 40);
    Draw();
    EXPECT_GT(picture.Covered(20, 30, 100, 70), 300);
    EXPECT_LE(picture.Covered(), picture.Covered(20, 29, 100, 71)) << "nothing above or below";
    EXPECT_GT(picture.Covered(0, 68, 100, 70), 0);
    EXPECT_GT(picture.Covered(0, 30, 100, 32), 0);
}

TEST_F(Texts, AreJustifiedAroundTheirPosition) {
    GraphicStruct* text = Text("HOHO", 50, 50, 10);
    for (const uint32_t format : {0u, 1u, 2u}) {
        ASSERT_TRUE(SetInteger(text, kPropTextFormat, format));
        const double left = BoxOf(text).left, right = BoxOf(text).right;
        EXPECT_NEAR((50 - left) / (right - left), format / 2.0, 1e-9);
        Draw();
        EXPECT_GT(picture.Covered(), 50);
        EXPECT_EQ(picture.Covered(), picture.Covered(static_cast<int>(left) - 1, 0, static_cast<int>(right) + 1, 100));
    }
}

TEST_F(Texts, GrowWithTheirSizeAndStretchToTheirWidth) {
    GraphicStruct* text = Text("Sample", 0, 0, 2);
    const double width = Width(text);
    SetReal(text, kPropTextSize, 6);
    EXPECT_NEAR(Width(text), 3 * width, width * 0.01);
    EXPECT_NEAR(Width(Text("Sample", 0, 0, 2, 0, 50)), 50, 1e-9);
    EXPECT_FALSE(SetReal(text, kPropTextSize, 0));
}

TEST_F(Texts, AreDrawnWithTheirMeasuredLength) {
    // With many narrow letters, rounding each to whole pixels would change some lengths by half.
    const char* const kString = "HHHHHHHHHHHHHHHHHHHHHHHHHHHHHH";
    for (const double width : {40.0, 55.0, 70.0, 90.0}) {
        GraphicStruct* text = Text(kString, 5, 50, 12, 0, width);
        Draw();
        const int end = 5 + static_cast<int>(width);
        EXPECT_EQ(picture.Covered(end + 2, 0, 100, 100), 0) << width;
        EXPECT_GT(picture.Covered(end - 4, 0, end + 1, 100), 5) << width;
        GraphicDelete(drawing.Root(), text);
        GraphicDispose(&text);
    }
}

// Right-to-left letters and digits between them cover as many pixels as drawn separately: they do not overlap.
TEST_F(Texts, OfTwoDirectionsDoNotOverlap) {
    GraphicStruct* text = Text("x", 5, 40, 14);
    SetText(text, kPropTextFont, "DejaVu Sans");
    const auto covered = [&](const wchar_t* letters) {
        static_cast<drawcore::TextGraphic*>(drawcore::Graphic::From(text))->state.text = letters;
        SetReal(text, kPropTextSize, 14); // measured again
        Draw();
        return picture.Covered();
    };
    const int narrow = covered(L"\x05D9"), digits = covered(L"8888");
    const int expected = 4 * narrow + digits;
    EXPECT_NEAR(covered(L"\x05D9\x05D9\x05D9\x05D9 8888"), expected, expected / 20);
    const int right = static_cast<int>(BoxOf(text).right);
    EXPECT_EQ(picture.Covered(right + 2, 0, 100, 100), 0);
    EXPECT_GT(picture.Covered(right - 5, 0, right + 1, 100), 10);
}

int CALLBACK Found(const LOGFONTA*, const TEXTMETRICA*, DWORD, LPARAM) {
    return 77;
}

// A face that the Text page can select: an installed one rather than a substituted name.
TEST_F(Texts, ReturnTheFaceThatTheyAreDrawnIn) {
    GraphicStruct* text = drawing.Add(GraphicNewEx(kGraphicText, 0, 1));
    char current[64] = "";
    EXPECT_TRUE(TableGetStringVar(drawing.Table(kTableUnits), kUnitFontName, current, sizeof current));
    EXPECT_EQ(GetText(text, kPropTextFont), current);
    EXPECT_EQ(::EnumFontFamiliesA(orlo::WindowDC(nullptr).get(), current, Found, 0), 77) << current;
    EXPECT_TRUE(SetText(text, kPropTextFont, "Nobody's Face"));
    EXPECT_EQ(GetText(text, kPropTextFont), "Nobody's Face") << "its settings, whoever draws it";
}

TEST_F(Texts, ShowTheirEffects) {
    GraphicStruct* text = Text("nnnn", 10, 50, 10);
    const auto covered = [&](uint16_t style) {
        EXPECT_TRUE(SetInteger(text, kPropTextStyle, style));
        Draw();
        return picture.Covered();
    };
    const int plain = covered(0);
    EXPECT_GT(plain, 20);
    EXPECT_EQ(covered(0x0008), 0) << "hidden";
    EXPECT_GT(covered(0x0100), plain + 10) << "underlined";
    EXPECT_GT(covered(0x0004), plain) << "strikethrough";
    EXPECT_GT(covered(0x1000), plain + 60) << "framed";
    EXPECT_GT(covered(0x0040), plain) << "NNNN";
    const double narrow = Width(text);
    SetInteger(text, kPropTextStyle, 2);
    EXPECT_NE(Width(text), narrow) << "bold";
    const int upright = covered(0);
    EXPECT_NE(covered(1), upright) << "italic";
}

TEST_F(Texts, RotateWithinTheirExtents) {
    for (int step = 0; step < 8; ++step) {
        GraphicStruct* text = Text("Turn", 50, 50, 10, step * 0.7853981634);
        Draw();
        const int left = static_cast<int>(std::floor(BoxOf(text).left)),
                  right = static_cast<int>(std::ceil(BoxOf(text).right));
        EXPECT_GT(picture.Covered(), 30) << step;
        EXPECT_EQ(picture.Covered(left - 1, 0, right + 1, 100), picture.Covered()) << step;
        GraphicDelete(drawing.Root(), text);
        GraphicDispose(&text);
    }
}

TEST_F(Texts, AreMirroredWithTheirInsertion) {
    // An L: stem at the left, foot to the right; the opposite if mirrored.
    GraphicStruct* text = Text("L", 0, 0, 1);
    GraphicDelete(drawing.Root(), text);
    const uint16_t block = BlocksAddBlock(drawing.Table(kTableBlocks), "L", text);
    for (const double side : {40.0, -40.0}) {
        const TestGraphic insert(MakeInsert(drawing.Table(kTableBlocks), block, {50, 30}, side, 40));
        picture.Draw(insert);
        const int left = picture.Covered(0, 30, 49, 72), right = picture.Covered(51, 30, 100, 72);
        EXPECT_GT(side > 0 ? right : left, 50);
        EXPECT_EQ(side > 0 ? left : right, 0);
        const int upper = picture.Covered(0, 50, 100, 72), lower = picture.Covered(0, 28, 100, 49);
        EXPECT_GT(lower, upper) << "the foot is below";
    }
}

TEST_F(Texts, AreDividedIntoLines) {
    GraphicStruct* text = Text("H\nH\nH", 50, 80, 10);
    Draw();
    EXPECT_GT(picture.Covered(40, 80, 60, 90), 0);
    EXPECT_GT(picture.Covered(40, 63, 60, 73), 0);
    EXPECT_GT(picture.Covered(40, 47, 60, 57), 0);
    EXPECT_EQ(picture.Covered(40, 75, 60, 78), 0) << "between the lines";
    EXPECT_EQ(picture.Covered(40, 0, 60, 44), 0);
    EXPECT_LT(Width(text), 12);
}

} // namespace
