// The Pen page in a real sheet: what it shows of equal and differing pens, what it writes, and what its preview follows.

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <string>

#include "drawcore/application.h"
#include "drawcore/drawing.h"
#include "drawcore/linestyle.h"
#include "drawcore/table.h"
#include "orlo/binding/indeterminate.h"
#include "orlo/entry/entry.h"
#include "orlo/host/drawing.h"
#include "orlo/host/table.h"
#include "orlo/host/units.h"
#include "orlo/resources/resource.h"
#include "support/host_frame.h"
#include "support/message_box_watcher.h"
#include "support/test_sheet.h"

namespace {

constexpr double kInch = 25.4;
constexpr unsigned int kDarkest = 0x333333; // the first of the numbered colours in colour order

class PenPage : public ::testing::Test {
protected:
    PenPage() : frame(kit.Drawing()) {
        styles = ::DrawingGetTable(kit.Drawing(), kTableLineStyles);
        const double dashes[] = {0.5, -0.25};
        dashed = ::LineStyleAdd(styles, "DASHED", nullptr, dashes, 2);
        ::TableSetStringVar(kit.Drawing()->pUnits, kUnitPenWidth, "mm");
    }
    ~PenPage() override { ::AppSetINIFileName(nullptr); }

    KitGraphic& Add(double width, unsigned int color, double scale, unsigned int style, int system,
                    int alignment) {
        return kit.Add({{kPropPenWidth, width},
                        {kPropPenColor, static_cast<double>(color)},
                        {kPropPenScale, scale},
                        {kPropPenStyle, static_cast<double>(style)},
                        {kPropScaleSystem, system},
                        {kPropPenAlignment, alignment}});
    }

    void AddEqual() {
        Add(1 / kInch, 0x0000FF, 2.0, dashed, 2, 1);
        Add(1 / kInch, 0x0000FF, 2.0, dashed, 2, 1);
    }

    void AddDiffering() {
        Add(1 / kInch, 0x0000FF, 2.0, dashed, 2, 1);
        Add(2 / kInch, 0x00FF00, 3.0, kLineStyleByLayer, 0, 0);
    }

    // Opens the sheet over the kit on its Pen page.
    int Run(std::function<void(SheetDriver&, CGraphicPropertyPage&)> script) {
        TestSheet sheet(kit);
        for (size_t i = 0; i < kit.Size(); ++i)
            ::AddGraphicPropertyPage(nullptr, kit[i].graphic, &sheet.Sheet());
        return sheet.Run([&](SheetDriver& user) {
            auto* page = sheet.Sheet().FindPage(IDD_PEN_PAGE);
            ASSERT_NE(nullptr, page);
            ASSERT_EQ(page, sheet.Sheet().GetActivePage());
            script(user, static_cast<CGraphicPropertyPage&>(*page));
        });
    }

    void WriteIni(const std::string& text) {
        char folder[MAX_PATH];
        ::GetTempPathA(sizeof folder, folder);
        ini = std::string(folder) + "orlo_pen_page_test.ini";
        std::ofstream(ini) << text;
        ::AppSetINIFileName(ini.c_str());
    }

    std::vector<std::string> Widths(SheetDriver& user) {
        std::vector<std::string> widths;
        const int count = static_cast<int>(::SendMessageA(user.Control(IDC_PEN_WIDTH), CB_GETCOUNT, 0, 0));
        for (int i = 0; i < count; ++i)
            widths.push_back(user.ItemText(IDC_PEN_WIDTH, i));
        return widths;
    }

    GraphicKit kit;
    HostFrame frame;
    TableStruct* styles;
    uint16_t dashed;
    std::string ini;
};

TEST_F(PenPage, ShowsAnEqualPen) {
    AddEqual();
    Run([&](SheetDriver& user, CGraphicPropertyPage&) {
        EXPECT_EQ("1 mm", user.Text(IDC_PEN_WIDTH));
        EXPECT_EQ("2", user.Text(IDC_PEN_SCALE));
        EXPECT_EQ("DASHED", user.Text(IDC_PEN_STYLE_TEXT));
        EXPECT_NE(-1, user.Selection(IDC_LINE_STYLE_LIST));
        EXPECT_EQ(1, user.Selection(IDC_SCALE_SYSTEM));
        EXPECT_EQ(BST_CHECKED, user.Check(IDC_PEN_ALIGNMENT));
        EXPECT_EQ("000000FF\t", user.ItemText(IDC_COLOR, user.Selection(IDC_COLOR)).substr(0, 9));
    });
}

TEST_F(PenPage, DifferingPensShowTheirMarkersAndSurviveOk) {
    AddDiffering();
    EXPECT_EQ(IDOK, Run([&](SheetDriver& user, CGraphicPropertyPage&) {
                  EXPECT_EQ("*****", user.Text(IDC_PEN_WIDTH));
                  EXPECT_EQ("Indeterminate", user.Text(IDC_PEN_SCALE));
                  EXPECT_EQ("Indeterminate", user.Text(IDC_PEN_STYLE_TEXT));
                  EXPECT_EQ(-1, user.Selection(IDC_LINE_STYLE_LIST));
                  EXPECT_EQ(-1, user.Selection(IDC_SCALE_SYSTEM));
                  EXPECT_EQ(-1, user.Selection(IDC_COLOR));
                  EXPECT_EQ(BST_INDETERMINATE, user.Check(IDC_PEN_ALIGNMENT));
                  user.Ok();
              }));
    EXPECT_EQ(0, kit.Writes());
}

struct Edit {
    const char* name;
    std::function<void(SheetDriver&)> edit;
    const char* property;
    double expected;
};

// One control changed over a selection that differs: its property reaches both, all others stay each graphic's own.
TEST_F(PenPage, OneEditOverDifferingPensChangesOneProperty) {
    const Edit kEdits[] = {
        {"color", [](SheetDriver& user) { user.Choose(IDC_COLOR, 0); }, kPropPenColor, kDarkest},
        {"width", [](SheetDriver& user) { user.Type(IDC_PEN_WIDTH, "5 mm"); }, kPropPenWidth, 5 / kInch},
        {"scale", [](SheetDriver& user) { user.Type(IDC_PEN_SCALE, "4.5"); }, kPropPenScale, 4.5},
        {"style",
         [&](SheetDriver& user) {
             user.Focus(IDC_LINE_STYLE_LIST);
             user.Key(VK_END); // without a selection the first key selects where the caret is
             user.Key(VK_END);
         },
         kPropPenStyle, kLineStyleByLayer},
        {"system", [](SheetDriver& user) { user.Choose(IDC_SCALE_SYSTEM, 1); }, kPropScaleSystem, 2},
        {"alignment", [](SheetDriver& user) { user.Click(IDC_PEN_ALIGNMENT); }, kPropPenAlignment, 0},
    };
    AddDiffering();
    for (const Edit& edit : kEdits) {
        SCOPED_TRACE(edit.name);
        kit[0].writes.clear();
        kit[1].writes.clear();
        EXPECT_EQ(IDOK, Run([&](SheetDriver& user, CGraphicPropertyPage&) {
                      edit.edit(user);
                      user.Ok();
                  }));
        for (size_t i : {0, 1}) {
            ASSERT_EQ(1u, kit[i].writes.size());
            EXPECT_EQ(edit.property, kit[i].writes[0].name);
            EXPECT_NEAR(edit.expected, kit[i].Number(edit.property), 1e-9);
        }
        kit[1].properties[edit.property].number += 1; // different again
    }
}

TEST_F(PenPage, TheWidthIsExpressedAnewWhenTheScaleSystemChanges) {
    AddEqual();
    Run([&](SheetDriver& user, CGraphicPropertyPage&) {
        const std::string paper = user.Text(IDC_PEN_WIDTH);
        user.Type(IDC_PEN_WIDTH, "7 mm");
        user.Choose(IDC_SCALE_SYSTEM, 0);
        const std::string world = user.Text(IDC_PEN_WIDTH);
        double value = 0;
        EXPECT_TRUE(::DrawingStdTextToNumeric(kit.Drawing(), world.c_str(), &value, 0));
        EXPECT_NEAR(1 / kInch, value, 1e-4); // the stored number, the edit dropped
        user.Choose(IDC_SCALE_SYSTEM, 1);
        EXPECT_EQ(paper, user.Text(IDC_PEN_WIDTH));
        user.Ok();
    });
    EXPECT_NEAR(1 / kInch, kit[0].Number(kPropPenWidth), 1e-9);
}

struct IniCase {
    const char* name;
    const char* text;
    std::vector<std::string> widths; // besides that of the selection
};

TEST_F(PenPage, OffersTheConfiguredWidths) {
    std::string circle = "[PenWidths]\nmm=*a\na=*mm\n";
    const IniCase kCases[] = {
        {"list", "[PenWidths]\nmm=0.25, 0.5 ,1.00,nonsense\n", {"0.25 mm", "0.5 mm"}},
        {"alias", "[PenWidths]\nmm=*other\nother=*in\nin=1\n", {"25.4 mm"}},
        {"circle", circle.c_str(), {}},
        {"alias too long", "[PenWidths]\nmm=*a23456789012345678901234567890123456789\n", {}},
        {"item too long",
         "[PenWidths]\nmm=0.25,                                                      3,2\n",
         {"0.25 mm", "2 mm"}},
        {"no section", "[Other]\nmm=3\n", {}},
        {"commas only", "[PenWidths]\nmm=,,,\n", {}},
    };
    AddEqual();
    for (const IniCase& ini_case : kCases) {
        SCOPED_TRACE(ini_case.name);
        WriteIni(ini_case.text);
        Run([&](SheetDriver& user, CGraphicPropertyPage&) {
            std::vector<std::string> expected = ini_case.widths;
            expected.push_back("1 mm");
            std::sort(expected.begin(), expected.end());
            EXPECT_EQ(expected, Widths(user));
            EXPECT_EQ("1 mm", user.Text(IDC_PEN_WIDTH));
        });
    }
}

TEST_F(PenPage, RefusesWhatIsNoWidthOrOutOfRangeAndWritesNothing) {
    AddEqual();
    for (const auto& [control, text] : {std::pair<int, const char*>{IDC_PEN_WIDTH, "thick"},
                                        {IDC_PEN_WIDTH, "-1 mm"},
                                        {IDC_PEN_WIDTH, ""},
                                        {IDC_PEN_SCALE, "0"},
                                        {IDC_PEN_SCALE, "1e9"},
                                        {IDC_PEN_SCALE, "1,5,7"}}) {
        SCOPED_TRACE(text);
        EXPECT_EQ(IDCANCEL,
                  Run([&, control = control, text = text](SheetDriver& user, CGraphicPropertyPage&) {
                      MessageBoxWatcher boxes;
                      user.Choose(IDC_COLOR, 0);
                      user.Type(control, text);
                      user.Ok();
                      EXPECT_TRUE(::IsWindowVisible(user.Sheet()));
                  }));
        EXPECT_EQ(0, kit.Writes());
    }
}

TEST_F(PenPage, ALongWidthIsStoredAsTyped) {
    AddEqual();
    EXPECT_EQ(IDOK, Run([&](SheetDriver& user, CGraphicPropertyPage&) {
                  user.Type(IDC_PEN_WIDTH, "0000.0625000000000000 in");
                  user.Ok();
              }));
    EXPECT_NEAR(0.0625, kit[0].Number(kPropPenWidth), 1e-9);
}

// A unit that the host does not know: there is no text for a width on paper.
TEST_F(PenPage, AWidthThatCannotBeWrittenLeavesItsFieldBlank) {
    AddEqual();
    ::TableSetStringVar(kit.Drawing()->pUnits, kUnitPenWidth, "furlong");
    MessageBoxWatcher boxes;
    EXPECT_EQ(IDOK, Run([&](SheetDriver& user, CGraphicPropertyPage&) {
                  EXPECT_EQ("", user.Text(IDC_PEN_WIDTH));
                  user.Choose(IDC_SCALE_SYSTEM, 0);
                  EXPECT_NE("", user.Text(IDC_PEN_WIDTH));
                  user.Choose(IDC_SCALE_SYSTEM, 1);
                  EXPECT_EQ("", user.Text(IDC_PEN_WIDTH));
                  user.Type(IDC_PEN_SCALE, "4");
                  user.Ok();
              }));
    EXPECT_TRUE(boxes.Boxes().empty());
    EXPECT_EQ(4, kit[0].Number(kPropPenScale));
    EXPECT_EQ(1 / kInch, kit[0].Number(kPropPenWidth));
}

TEST_F(PenPage, AStoredScaleOfZeroHasToBeReplaced) {
    Add(1, 0, 0.0, dashed, 2, 1);
    Run([&](SheetDriver& user, CGraphicPropertyPage&) {
        MessageBoxWatcher boxes;
        EXPECT_EQ("1.17549e-38", user.Text(IDC_PEN_SCALE));
        user.Ok();
        EXPECT_EQ(1u, boxes.Boxes().size());
        user.Type(IDC_PEN_SCALE, "1");
        user.Ok();
    });
    EXPECT_EQ(1, kit[0].Number(kPropPenScale));
}

// The indeterminate state is left at the first click, for the other of the last definite state, and never comes back.
TEST_F(PenPage, AnIndeterminateAlignmentTogglesFromItsFirstClick) {
    AddDiffering();
    Run([&](SheetDriver& user, CGraphicPropertyPage&) {
        std::vector<int> states;
        for (int i = 0; i < 6; ++i) {
            user.Click(IDC_PEN_ALIGNMENT);
            states.push_back(user.Check(IDC_PEN_ALIGNMENT));
        }
        for (size_t i = 0; i < states.size(); ++i) {
            EXPECT_NE(BST_INDETERMINATE, states[i]);
            if (i > 0) {
                EXPECT_NE(states[i - 1], states[i]);
            }
        }
    });
}

TEST_F(PenPage, NamesEveryKindOfStyle) {
    const std::pair<unsigned int, const char*> kNames[] = {{0, "Undefined"}, {dashed, "DASHED"}, {4242, ""}};
    for (const auto& [style, name] : kNames) {
        GraphicKit other;
        HostFrame otherFrame(other.Drawing());
        const double dashes[] = {0.5, -0.25};
        ::LineStyleAdd(::DrawingGetTable(other.Drawing(), kTableLineStyles), "DASHED", nullptr, dashes, 2);
        other.Add({{kPropPenStyle, static_cast<double>(style)}});
        TestSheet sheet(other);
        ::AddGraphicPropertyPage(nullptr, other[0].graphic, &sheet.Sheet());
        sheet.Run([&, name = name](SheetDriver& user) { EXPECT_EQ(name, user.Text(IDC_PEN_STYLE_TEXT)); });
    }
}

// The preview graphic follows each edit, half-typed texts leave it alone, and no selected graphic changes.
TEST_F(PenPage, ThePreviewFollowsTheControls) {
    AddEqual();
    Run([&](SheetDriver& user, CGraphicPropertyPage& page) {
        unsigned long color = 1;
        double width = 0, scale = 0;
        EXPECT_EQ(1, page.GetPropText(kPropPenColor, &color, 1));
        EXPECT_EQ(0xFFul, color);
        user.Choose(IDC_COLOR, 0);
        page.GetPropText(kPropPenColor, &color, 1);
        EXPECT_EQ(kDarkest, color);
        user.Type(IDC_PEN_WIDTH, "3 mm");
        page.GetPropText(kPropPenWidth, &width, 1);
        EXPECT_NEAR(3 / kInch, width, 1e-9);
        user.Type(IDC_PEN_WIDTH, "3 m?");
        user.Type(IDC_PEN_SCALE, "0.5");
        page.GetPropText(kPropPenScale, &scale, 1);
        EXPECT_NEAR(0.5, scale, 1e-9);
        unsigned int style = 0;
        user.Focus(IDC_LINE_STYLE_LIST);
        user.Key(VK_END);
        page.GetPropText(kPropPenStyle, &style, 1);
        EXPECT_EQ(65534u, style);
        EXPECT_EQ(0, kit.Writes());
    });
    EXPECT_EQ(0, kit.Writes());
}

TEST_F(PenPage, OutlivesTheStyleTable) {
    AddEqual();
    EXPECT_EQ(IDOK, Run([&](SheetDriver& user, CGraphicPropertyPage&) {
                  ::DrawingDeleteTable(kit.Drawing(), styles);
                  user.Focus(IDC_LINE_STYLE_LIST);
                  for (const UINT key : {VK_HOME, VK_DOWN, VK_END})
                      user.Key(key);
                  ::InvalidateRect(user.Sheet(), nullptr, TRUE);
                  user.Pump();
                  user.Type(IDC_PEN_SCALE, "3");
                  user.Ok();
              }));
    EXPECT_EQ(3, kit[0].Number(kPropPenScale));
}

} // namespace
