// The Brush page in a real sheet: what it shows of equal and differing fillings, which controls a style enables, what it
// writes, and what its preview shows.

#include <gtest/gtest.h>

#include <afxwin.h>

#include <commctrl.h>

#include <cmath>
#include <map>
#include <string>

#include "drawcore/application.h"
#include "drawcore/table.h"
#include "drawcore/units.h"
#include "orlo/binding/indeterminate.h"
#include "orlo/entry/entry.h"
#include "orlo/host/drawing.h"
#include "orlo/host/table.h"
#include "orlo/host/viewport.h"
#include "orlo/resources/resource.h"
#include "support/host_frame.h"
#include "support/message_box_watcher.h"
#include "support/pixels.h"
#include "support/test_sheet.h"

namespace {

constexpr unsigned int kRed = 0x0000FF, kBlue = 0xFF0000;
constexpr double kDegree = 0.017453292519943295;

class BrushPage : public ::testing::Test {
protected:
    BrushPage() : frame(kit.Drawing()), styles(::DrawingGetTable(kit.Drawing(), kTableBrushStyles)) {}

    uint16_t Style(const char* name) { return ::TableEntryGetIDFirst(styles, nullptr, name); }

    KitGraphic& Add(unsigned int style, unsigned int color, double scale, double angle, int cross, int mode) {
        return kit.Add({{kPropBrushStyle, static_cast<double>(style)},
                        {kPropBrushColor, static_cast<double>(color)},
                        {kPropBrushScale, scale},
                        {kPropBrushAngle, angle},
                        {kPropHatchCross, cross},
                        {kPropBrushDrawMode, mode}});
    }

    void AddDiffering() {
        Add(Style("Cross"), kRed, 2, 30 * kDegree, 1, 1);
        Add(Style("Vertical"), kBlue, 3, 45 * kDegree, 0, 0);
    }

    int Run(const std::function<void(SheetDriver&, CGraphicPropertyPage&)>& script) {
        TestSheet sheet(kit);
        for (size_t i = 0; i < kit.Size(); ++i)
            ::AddGraphicPropertyPage(nullptr, kit[i].graphic, &sheet.Sheet());
        return sheet.Run([&](SheetDriver& user) {
            auto* page = sheet.Sheet().FindPage(IDD_BRUSH_PAGE);
            ASSERT_NE(nullptr, page);
            sheet.Sheet().SetActivePage(page);
            script(user, static_cast<CGraphicPropertyPage&>(*page));
        });
    }

    // By its item; the list is walked with the keyboard.
    void ChooseStyle(SheetDriver& user, unsigned int style) {
        user.Focus(IDC_BRUSH_STYLE_LIST);
        user.Key(VK_HOME);
        user.Key(VK_HOME);
        const HWND list = user.Control(IDC_BRUSH_STYLE_LIST);
        for (int i = 0; i < 40; ++i) {
            char text[300] = "";
            ::SendMessageA(list, LB_GETTEXT, user.Selection(IDC_BRUSH_STYLE_LIST),
                           reinterpret_cast<LPARAM>(text));
            if (std::strtoul(text, nullptr, 16) == style) return;
            user.Key(VK_DOWN);
        }
        FAIL() << "no item of style " << style;
    }

    GraphicKit kit;
    HostFrame frame;
    TableStruct* styles;
};

TEST_F(BrushPage, ShowsAnEqualBrush) {
    for (int i = 0; i < 2; ++i)
        Add(Style("Diagonal cross"), kBlue, 2.5, 30 * kDegree, 1, 1);
    EXPECT_EQ(IDOK, Run([&](SheetDriver& user, CGraphicPropertyPage&) {
                  EXPECT_EQ("Diagonal cross", user.Text(IDC_BRUSH_STYLE_TEXT));
                  EXPECT_EQ("Vector:", user.Text(IDC_BRUSH_KIND_TEXT));
                  EXPECT_EQ("2.5", user.Text(IDC_BRUSH_SCALE));
                  EXPECT_EQ(0u, user.Text(IDC_BRUSH_ANGLE).find("30")) << user.Text(IDC_BRUSH_ANGLE);
                  EXPECT_EQ(BST_CHECKED, user.Check(IDC_HATCH_CROSS));
                  EXPECT_EQ(BST_CHECKED, user.Check(IDC_DRAW_WINDING));
                  EXPECT_EQ(BST_UNCHECKED, user.Check(IDC_DRAW_ALTERNATE));
                  EXPECT_EQ("00FF0000",
                            user.ItemText(IDC_BRUSH_COLOR, user.Selection(IDC_BRUSH_COLOR)).substr(0, 8));
                  user.Ok();
              }));
    EXPECT_EQ(0, kit.Writes());
}

TEST_F(BrushPage, DifferingBrushesShowTheirMarkersAndSurviveOk) {
    AddDiffering();
    EXPECT_EQ(IDOK, Run([&](SheetDriver& user, CGraphicPropertyPage&) {
                  EXPECT_EQ("Indeterminate", user.Text(IDC_BRUSH_STYLE_TEXT));
                  EXPECT_EQ(-1, user.Selection(IDC_BRUSH_STYLE_LIST));
                  EXPECT_EQ(-1, user.Selection(IDC_BRUSH_COLOR));
                  EXPECT_EQ("Indeterminate", user.Text(IDC_BRUSH_SCALE));
                  EXPECT_EQ("Indeterminate", user.Text(IDC_BRUSH_ANGLE));
                  EXPECT_EQ(BST_INDETERMINATE, user.Check(IDC_HATCH_CROSS));
                  EXPECT_EQ(BST_UNCHECKED, user.Check(IDC_DRAW_WINDING));
                  EXPECT_EQ(BST_UNCHECKED, user.Check(IDC_DRAW_ALTERNATE));
                  EXPECT_FALSE(::IsWindowEnabled(user.Control(IDC_BRUSH_COLOR)));
                  user.Ok();
              }));
    EXPECT_EQ(0, kit.Writes());
}

TEST_F(BrushPage, OneEditOverDifferingBrushesChangesOneProperty) {
    struct {
        const char* property;
        std::function<void(SheetDriver&)> edit;
        double expected;
    } const edits[] = {
        {kPropBrushStyle, [&](SheetDriver& user) { ChooseStyle(user, Style("Horizontal")); },
         static_cast<double>(Style("Horizontal"))},
        {kPropBrushScale, [](SheetDriver& user) { user.Type(IDC_BRUSH_SCALE, "4.5"); }, 4.5},
        {kPropBrushAngle, [](SheetDriver& user) { user.Type(IDC_BRUSH_ANGLE, "60"); }, 60 * kDegree},
        {kPropHatchCross, [](SheetDriver& user) { user.Click(IDC_HATCH_CROSS); }, 0},
        {kPropBrushDrawMode, [](SheetDriver& user) { user.Click(IDC_DRAW_ALTERNATE); }, 0},
        {kPropBrushColor, [](SheetDriver& user) { user.Choose(IDC_BRUSH_COLOR, 0); }, 0x333333},
    };
    Add(Style("Cross"), kRed, 2, 30 * kDegree, 1, 1);
    Add(Style("Cross"), kBlue, 3, 45 * kDegree, 0, 0);
    const std::map<std::string, KitValue> before[] = {kit[0].properties, kit[1].properties};
    for (const auto& edit : edits) {
        SCOPED_TRACE(edit.property);
        EXPECT_EQ(IDOK, Run([&](SheetDriver& user, CGraphicPropertyPage&) {
                      edit.edit(user);
                      user.Ok();
                  }));
        for (size_t i : {0, 1}) {
            for (const KitWrite& write : kit[i].writes)
                EXPECT_EQ(edit.property, write.name);
            EXPECT_NEAR(edit.expected, kit[i].Number(edit.property), 1e-9);
            kit[i].properties = before[i];
            kit[i].writes.clear();
        }
    }
}

TEST_F(BrushPage, TheStyleDecidesWhichControlsMakeSense) {
    struct {
        unsigned int style;
        bool color, hatch, mode;
        const char* kind;
        const char* name;
    } const rows[] = {{0, false, false, false, "", "No Brush"},
                      {Style("Solid"), true, false, true, "Vector:", "Solid"},
                      {Style("Cross"), true, true, true, "Vector:", "Cross"},
                      {Style("Dots 50%"), true, false, true, "Bitmap:", "Dots 50%"},
                      {Style("Brick bitmap"), false, false, true, "Bitmap:", "Brick bitmap"}};
    Add(Style("Cross"), kRed, 1, 0, 0, 0);
    Run([&](SheetDriver& user, CGraphicPropertyPage&) {
        const auto expect = [&](std::initializer_list<int> ids, bool enabled) {
            for (const int id : ids)
                EXPECT_EQ(enabled, ::IsWindowEnabled(user.Control(id)) != 0) << id;
        };
        for (const auto& row : rows) {
            SCOPED_TRACE(row.name);
            ChooseStyle(user, row.style);
            expect({IDC_BRUSH_COLOR}, row.color);
            expect({IDC_BRUSH_SCALE, IDC_BRUSH_ANGLE, IDC_BRUSH_ANGLE_ARROWS, IDC_HATCH_CROSS}, row.hatch);
            expect({IDC_DRAW_WINDING, IDC_DRAW_ALTERNATE}, row.mode);
            EXPECT_EQ(row.kind, user.Text(IDC_BRUSH_KIND_TEXT));
            EXPECT_EQ(row.name, user.Text(IDC_BRUSH_STYLE_TEXT));
        }
    });
}

TEST_F(BrushPage, RefusesAScaleOutOfRangeAndPassesOverATextThatIsNoAngle) {
    Add(Style("Cross"), kRed, 2, 30 * kDegree, 0, 0);
    for (const char* scale : {"0", "1e9", "wide", ""}) {
        SCOPED_TRACE(scale);
        Run([&](SheetDriver& user, CGraphicPropertyPage&) {
            MessageBoxWatcher boxes;
            user.Click(IDC_HATCH_CROSS);
            user.Type(IDC_BRUSH_SCALE, scale);
            user.Ok();
            EXPECT_TRUE(::IsWindowVisible(user.Sheet()));
            EXPECT_EQ(1u, boxes.Boxes().size());
            EXPECT_EQ(user.Control(IDC_BRUSH_SCALE), ::GetFocus());
        });
        EXPECT_EQ(0, kit.Writes());
    }
    EXPECT_EQ(IDOK, Run([&](SheetDriver& user, CGraphicPropertyPage&) {
                  user.Type(IDC_BRUSH_ANGLE, "steep");
                  user.Ok();
              }));
    EXPECT_NEAR(30 * kDegree, kit[0].Number(kPropBrushAngle), 1e-9);
}

// One unit of the drawing's angular system further, in whatever form the angle is written, and round at a full turn.
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
    Add(Style("Cross"), kRed, 2, 30 * kDegree, 0, 0);
    for (const auto& row : rows) {
        SCOPED_TRACE(row.text);
        ::TableSetIntVar(kit.Drawing()->pUnits, kUnitAngularSystem, row.system);
        EXPECT_EQ(IDOK, Run([&](SheetDriver& user, CGraphicPropertyPage& page) {
                      user.Type(IDC_BRUSH_ANGLE, row.text);
                      user.Key(row.key);
                      double shown = -1;
                      page.GetPropText(kPropBrushAngle, &shown, 1);
                      EXPECT_NEAR(row.expected, shown, 1e-6) << user.Text(IDC_BRUSH_ANGLE);
                      user.Ok();
                  }));
        EXPECT_NEAR(row.expected, kit[0].Number(kPropBrushAngle), 1e-6);
    }
    Run([](SheetDriver& user, CGraphicPropertyPage&) {
        user.Type(IDC_BRUSH_ANGLE, "steep");
        const LPARAM upper = MAKELPARAM(2, 2);
        ::SendMessageA(user.Control(IDC_BRUSH_ANGLE_ARROWS), WM_LBUTTONDOWN, MK_LBUTTON, upper);
        ::SendMessageA(user.Control(IDC_BRUSH_ANGLE_ARROWS), WM_LBUTTONUP, 0, upper);
        EXPECT_EQ("steep", user.Text(IDC_BRUSH_ANGLE)) << "not an angle to start from";
    });
}

TEST_F(BrushPage, ThePreviewFollowsTheControlsAtAScaleOfItsOwn) {
    Add(Style("Cross"), kRed, 1000, 0, 0, 0);
    Run([&](SheetDriver& user, CGraphicPropertyPage& page) {
        const auto shown = [&](const char* property) {
            double value = -1;
            page.GetPropText(property, &value, 1);
            return value;
        };
        EXPECT_NEAR(std::sqrt(2.0) / 20, shown(kPropBrushScale), 1e-6) << "two families of spacing 1";
        ChooseStyle(user, Style("Vertical"));
        EXPECT_NEAR(1.0 / 20, shown(kPropBrushScale), 1e-6);
        user.Type(IDC_BRUSH_ANGLE, "90");
        EXPECT_NEAR(90 * kDegree, shown(kPropBrushAngle), 1e-9);
        user.Type(IDC_BRUSH_SCALE, "7");
        EXPECT_NEAR(1.0 / 20, shown(kPropBrushScale), 1e-6) << "never the user's";
    });
    EXPECT_EQ(0, kit.Writes());
}

// The overlap of the two squares is filled in winding mode only.
TEST_F(BrushPage, ThePreviewShowsTheDrawMode) {
    Add(Style("Solid"), kRed, 1, 0, 0, 0);
    Run([&](SheetDriver& user, CGraphicPropertyPage& page) {
        const auto colors = [&] {
            Pixels pixels(101, 101);
            pixels.Clear(RGB(255, 255, 255));
            CRect rect(0, 0, 101, 101);
            CDC dc;
            dc.Attach(pixels.DC());
            ViewportStruct* viewport = ::ViewportNewEx();
            page.DrawPreview(&dc, viewport, rect);
            ::ViewportDispose(&viewport);
            dc.Detach();
            return std::pair(pixels.At(20, 35), pixels.At(50, 50)); // one square alone; the overlap
        };
        EXPECT_EQ(kRed, colors().first);
        EXPECT_NE(kRed, colors().second);
        user.Click(IDC_DRAW_WINDING);
        EXPECT_EQ(kRed, colors().first);
        EXPECT_EQ(kRed, colors().second);
    });
}

} // namespace
