// The Brush page in a real sheet: equal and differing brushes, controls enabled by a style, writing, and the preview.

#include "pages/page_over_kit.h"

#include <oaidl.h>

namespace {

constexpr double kDegree = 0.017453292519943295;

class BrushPage : public PageOverKit {
protected:
    BrushPage() : PageOverKit(IDD_BRUSH_PAGE), styles(::DrawingGetTable(kit.Drawing(), kTableBrushStyles)) {}

    int Style(const char* name) { return ::TableEntryGetIDFirst(styles, nullptr, name); }

    void Add(const char* style, unsigned int color, double scale, double angle, int cross, int mode) {
        kit.Add({{kPropBrushStyle, Style(style)},
                 {kPropBrushColor, static_cast<double>(color)},
                 {kPropBrushScale, scale},
                 {kPropBrushAngle, angle},
                 {kPropHatchCross, cross},
                 {kPropBrushDrawMode, mode}});
    }
    // Selects an item of the list with the keyboard.
    void SelectStyle(SheetDriver& user, int style) {
        user.Focus(IDC_BRUSH_STYLE_LIST);
        user.Key(VK_HOME);
        user.Key(VK_HOME);
        for (int i = 0; i < 40; ++i) {
            if (std::stoul(Shown(user, IDC_BRUSH_STYLE_LIST), nullptr, 16) == static_cast<unsigned>(style)) return;
            user.Key(VK_DOWN);
        }
        FAIL() << "no item of style " << style;
    }
    static std::vector<std::string> ShownBrush(SheetDriver& user) {
        return Shown(user, {IDC_BRUSH_STYLE_TEXT, IDC_BRUSH_SCALE, IDC_BRUSH_ANGLE, IDC_HATCH_CROSS, IDC_DRAW_WINDING,
                            IDC_DRAW_ALTERNATE, IDC_BRUSH_COLOR});
    }

    TableStruct* styles;
};

TEST_F(BrushPage, ShowsAnEqualBrush) {
    for (int i = 0; i < 2; ++i)
        Add("Diagonal cross", kBlue, 2.5, 30 * kDegree, 1, 1);
    RunOk([&](SheetDriver& user) {
        EXPECT_EQ(ShownBrush(user),
                  (std::vector<std::string>{"Diagonal cross", "2.5", "30", "1", "1", "0", "00FF0000"}));
        EXPECT_EQ(user.Text(IDC_BRUSH_KIND_TEXT), "Vector:");
    });
    EXPECT_EQ(kit.Writes(), 0);
}

TEST_F(BrushPage, DifferingBrushesShowTheirMarkersAndSurviveOk) {
    Add("Cross", kRed, 2, 30 * kDegree, 1, 1);
    Add("Vertical", kBlue, 3, 45 * kDegree, 0, 0);
    RunOk([&](SheetDriver& user) {
        EXPECT_EQ(ShownBrush(user),
                  (std::vector<std::string>{"Indeterminate", "Indeterminate", "Indeterminate", "2", "0", "0", ""}));
        EXPECT_EQ(user.Selection(IDC_BRUSH_STYLE_LIST), -1);
        EXPECT_EQ(user.Selection(IDC_BRUSH_COLOR), -1);
        EXPECT_FALSE(::IsWindowEnabled(user.Control(IDC_BRUSH_COLOR)));
    });
    EXPECT_EQ(kit.Writes(), 0);
}

TEST_F(BrushPage, OneEditOverDifferingBrushesChangesOneProperty) {
    Add("Cross", kRed, 2, 30 * kDegree, 1, 1);
    Add("Cross", kBlue, 3, 45 * kDegree, 0, 0);
    ExpectEachChangesOneProperty(
        {{kPropBrushStyle, [&](SheetDriver& user) { SelectStyle(user, Style("Horizontal")); }, Style("Horizontal")},
         {kPropBrushScale, [](SheetDriver& user) { user.Type(IDC_BRUSH_SCALE, "4.5"); }, 4.5},
         {kPropBrushAngle, [](SheetDriver& user) { user.Type(IDC_BRUSH_ANGLE, "60"); }, 60 * kDegree},
         {kPropHatchCross, [](SheetDriver& user) { user.Click(IDC_HATCH_CROSS); }, 0},
         {kPropBrushDrawMode, [](SheetDriver& user) { user.Click(IDC_DRAW_ALTERNATE); }, 0},
         {kPropBrushColor, [](SheetDriver& user) { user.SelectItem(IDC_BRUSH_COLOR, 0); }, int{kDarkest}}});
}

TEST_F(BrushPage, StyleDeterminesEnabledControls) {
    const struct {
        int style;
        bool color, hatch, mode;
        const char* kind;
        const char* name;
    } rows[] = {{0, false, false, false, "", "No Brush"},
                {Style("Solid"), true, false, true, "Vector:", "Solid"},
                {Style("Cross"), true, true, true, "Vector:", "Cross"},
                {Style("Dots 50%"), true, false, true, "Bitmap:", "Dots 50%"},
                {Style("Brick bitmap"), false, false, true, "Bitmap:", "Brick bitmap"}};
    Add("Cross", kRed, 1, 0, 0, 0);
    Run([&](SheetDriver& user, CGraphicPropertyPage&) {
        const auto expect = [&](std::initializer_list<int> ids, bool enabled) {
            for (const int id : ids)
                EXPECT_EQ(enabled, ::IsWindowEnabled(user.Control(id)) != 0) << id;
        };
        for (const auto& row : rows) {
            SCOPED_TRACE(row.name);
            SelectStyle(user, row.style);
            expect({IDC_BRUSH_COLOR}, row.color);
            expect({IDC_BRUSH_SCALE, IDC_BRUSH_ANGLE, IDC_BRUSH_ANGLE_ARROWS, IDC_HATCH_CROSS}, row.hatch);
            expect({IDC_DRAW_WINDING, IDC_DRAW_ALTERNATE}, row.mode);
            EXPECT_EQ(row.kind, user.Text(IDC_BRUSH_KIND_TEXT));
            EXPECT_EQ(row.name, user.Text(IDC_BRUSH_STYLE_TEXT));
        }
    });
}

TEST_F(BrushPage, RejectsAScaleOutOfRangeAndIgnoresTextThatIsNotAnAngle) {
    Add("Cross", kRed, 2, 30 * kDegree, 0, 0);
    for (const char* scale : {"0", "1e9", "wide", ""}) {
        SCOPED_TRACE(scale);
        Run([&](SheetDriver& user, CGraphicPropertyPage&) {
            MessageBoxWatcher boxes;
            user.Click(IDC_HATCH_CROSS);
            user.Type(IDC_BRUSH_SCALE, scale);
            user.Ok();
            EXPECT_TRUE(::IsWindowVisible(user.Sheet()));
            EXPECT_EQ(boxes.Boxes().size(), 1u);
            EXPECT_EQ(user.Control(IDC_BRUSH_SCALE), ::GetFocus());
        });
        EXPECT_EQ(kit.Writes(), 0);
    }
    RunOk([](SheetDriver& user) { user.Type(IDC_BRUSH_ANGLE, "steep"); });
    EXPECT_EQ(30 * kDegree, kit[0].Number(kPropBrushAngle));
}

// An angle typed before an exchange that another field made fail is not used for text without an angle.
TEST_F(BrushPage, TextThatIsNotAnAngleChangesNoAngle) {
    Add("Cross", kRed, 2, 50 * kDegree, 0, 0);
    Add("Cross", kRed, 2, 60 * kDegree, 0, 0);
    RunOk([&](SheetDriver& user) {
        MessageBoxWatcher boxes;
        user.Type(IDC_BRUSH_ANGLE, "30");
        user.Type(IDC_BRUSH_SCALE, "wide");
        user.Ok();
        EXPECT_EQ(boxes.Boxes().size(), 1u);
        user.Type(IDC_BRUSH_ANGLE, "abc");
        user.Type(IDC_BRUSH_SCALE, "3");
    });
    EXPECT_EQ(kit[0].Number(kPropBrushScale), 3);
    EXPECT_EQ(50 * kDegree, kit[0].Number(kPropBrushAngle));
    EXPECT_EQ(60 * kDegree, kit[1].Number(kPropBrushAngle));
}

// The field of a solid brush is disabled, so that the user could not correct its scale.
TEST_F(BrushPage, UneditedNumbersAreNotValidated) {
    Add("Cross", kRed, 1, 1e39, 0, 0);
    for (const char* style : {"Solid", "Cross"}) {
        for (const double scale : {0.0, 1e8}) {
            kit[0].properties[kPropBrushStyle] = Style(style);
            kit[0].properties[kPropBrushScale] = scale;
            kit[0].properties[kPropBrushColor] = int{kRed};
            MessageBoxWatcher boxes;
            RunOk([](SheetDriver& user) { user.SelectItem(IDC_BRUSH_COLOR, 0); });
            EXPECT_TRUE(boxes.Boxes().empty());
            EXPECT_EQ(scale, kit[0].Number(kPropBrushScale));
            EXPECT_EQ(kit[0].Number(kPropBrushAngle), 1e39);
            EXPECT_EQ(kit[0].Number(kPropBrushColor), kDarkest);
        }
    }
}

TEST_F(BrushPage, AngleThatCannotBeFormattedIsBlank) {
    Add("Cross", kRed, 1, -HUGE_VAL, 0, 0);
    Run([&](SheetDriver& user, CGraphicPropertyPage& page) {
        EXPECT_EQ(user.Text(IDC_BRUSH_ANGLE), "");
        kit[0].properties[kPropBrushAngle] = 0.0;
        page.UpdateData(FALSE);
        EXPECT_EQ(user.Text(IDC_BRUSH_ANGLE), "0");
        kit[0].properties[kPropBrushAngle] = -HUGE_VAL;
        page.UpdateData(FALSE);
        EXPECT_EQ(user.Text(IDC_BRUSH_ANGLE), "");
    });
}

TEST_F(BrushPage, ArrowsUpAndDownRestoreTheAngle) {
    constexpr double kUnrounded = 0.123456789012345;
    Add("Cross", kRed, 2, kUnrounded, 0, 0);
    RunOk([](SheetDriver& user) {
        user.Focus(IDC_BRUSH_ANGLE);
        user.Key(VK_UP);
        user.Key(VK_DOWN);
    });
    EXPECT_EQ(kit[0].Number(kPropBrushAngle), kUnrounded);
}

// Pen properties are written to all previews; this one keeps its own pen.
TEST_F(BrushPage, ThePreviewKeepsItsOwnPen) {
    Add("Cross", kRed, 2, 0, 0, 0);
    Run([&](SheetDriver& user, CGraphicPropertyPage& page) {
        const auto get = [&](const char* name, int vt, auto value) {
            GraphicStruct* const graphic = page.GetPreviewGraphic();
            const PropertyTable* const table = ::GraphicGetVtbl(graphic);
            int32_t number = 0;
            EXPECT_TRUE(table->PropLookup(graphic, &name, 1, 0, &number));
            table->PropGet(graphic, number, vt, &value);
            return value;
        };
        const auto pen = [&] { return std::pair(get(kPropPenStyle, VT_UI4, 0u), get(kPropPenWidth, VT_R8, 0.0)); };
        unsigned int style = kLineStyleByLayer;
        double width = 3;
        page.SetPropText(kPropPenStyle, style, 1);
        page.SetPropText(kPropPenWidth, width, 1);
        EXPECT_EQ(std::pair(style, width), pen());
        user.Click(IDC_HATCH_CROSS);
        EXPECT_EQ(std::pair(unsigned{kLineStyleByBlock}, 0.0), pen());
    });
}

// By one unit of the drawing's angular system, in any format, wrapping around at a full turn.
TEST_F(BrushPage, ArrowsTurnTheAngleByOneUnit) {
    constexpr double kGrad = 0.9 * kDegree;
    const struct {
        int system;
        const char* text;
        UINT key;
        double expected;
    } rows[] = {{0, "45.5", VK_UP, 46.5 * kDegree},   {0, "359", VK_UP, 0},
                {0, "0", VK_DOWN, 359 * kDegree},     {0, "-30", VK_UP, 331 * kDegree},
                {0, "359.25", VK_UP, 0.25 * kDegree}, {1, "12d30'", VK_DOWN, 11.5 * kDegree},
                {2, "399.5", VK_UP, 0.5 * kGrad},     {3, "0.5", VK_UP, 1.5},
                {4, "N 45d E", VK_UP, 46 * kDegree},  {4, "W", VK_DOWN, 179 * kDegree},
                {0, "Indeterminate", VK_UP, kDegree}};
    Add("Cross", kRed, 2, 30 * kDegree, 0, 0);
    for (const auto& row : rows) {
        SCOPED_TRACE(row.text);
        ::TableSetIntVar(kit.Drawing()->pUnits, kUnitAngularSystem, row.system);
        EXPECT_EQ(Run([&](SheetDriver& user, CGraphicPropertyPage& page) {
                      user.Type(IDC_BRUSH_ANGLE, row.text);
                      user.Key(row.key);
                      EXPECT_NEAR(row.expected, Previewed(page, kPropBrushAngle), 1e-6);
                      user.Ok();
                  }),
                  IDOK);
        EXPECT_NEAR(row.expected, kit[0].Number(kPropBrushAngle), 1e-6);
    }
    RunOk([](SheetDriver& user) {
        user.Type(IDC_BRUSH_ANGLE, "steep");
        const LPARAM upper = MAKELPARAM(2, 2);
        ::SendMessageA(user.Control(IDC_BRUSH_ANGLE_ARROWS), WM_LBUTTONDOWN, MK_LBUTTON, upper);
        ::SendMessageA(user.Control(IDC_BRUSH_ANGLE_ARROWS), WM_LBUTTONUP, 0, upper);
        EXPECT_EQ(user.Text(IDC_BRUSH_ANGLE), "steep") << "not an angle to start from";
    });
}

TEST_F(BrushPage, ThePreviewFollowsTheControlsAtItsOwnScale) {
    Add("Cross", kRed, 1000, 0, 0, 0);
    Run([&](SheetDriver& user, CGraphicPropertyPage& page) {
        EXPECT_NEAR(std::sqrt(2.0) / 20, Previewed(page, kPropBrushScale), 1e-6) << "two families of spacing 1";
        SelectStyle(user, Style("Vertical"));
        EXPECT_NEAR(1.0 / 20, Previewed(page, kPropBrushScale), 1e-6);
        user.Type(IDC_BRUSH_ANGLE, "90");
        EXPECT_NEAR(90 * kDegree, Previewed(page, kPropBrushAngle), 1e-9);
        user.Type(IDC_BRUSH_SCALE, "7");
        EXPECT_NEAR(1.0 / 20, Previewed(page, kPropBrushScale), 1e-6) << "never the user's";
        user.SelectItem(IDC_BRUSH_COLOR, 0);
        EXPECT_EQ(Previewed<unsigned long>(page, kPropBrushColor), kDarkest);
    });
    EXPECT_EQ(kit.Writes(), 0);
}

// The overlap of the two squares is filled in winding mode only.
TEST_F(BrushPage, ThePreviewShowsTheDrawMode) {
    Add("Solid", kRed, 1, 0, 0, 0);
    Run([&](SheetDriver& user, CGraphicPropertyPage& page) {
        const auto colors = [&] {
            Pixels pixels(101, 101);
            DrawPreview(page, pixels, 101, 101);
            return std::pair(pixels.At(20, 35), pixels.At(50, 50)); // in one square only, and in the overlap
        };
        EXPECT_EQ(colors().first, kRed);
        EXPECT_NE(colors().second, kRed);
        user.Click(IDC_DRAW_WINDING);
        EXPECT_EQ(std::pair(COLORREF{kRed}, COLORREF{kRed}), colors());
    });
}

} // namespace
