// The Pen page in a real sheet: equal and differing pens, writing, and the preview.

#include "pages/page_over_kit.h"

#include <algorithm>

#include "drawcore/linestyle.h"

namespace {

constexpr double kInch = 25.4;

class PenPage : public PageOverKit {
protected:
    PenPage() : PageOverKit(IDD_PEN_PAGE), styles(::DrawingGetTable(kit.Drawing(), kTableLineStyles)) {
        const double dashes[] = {0.5, -0.25};
        dashed = ::LineStyleAdd(styles, "DASHED", nullptr, dashes, 2);
        ::TableSetStringVar(kit.Drawing()->pUnits, kUnitPenWidth, "mm");
    }

    KitGraphic& Add(double width, unsigned int color, double scale, int style, int system, int alignment) {
        return kit.Add({{kPropPenWidth, width},
                        {kPropPenColor, static_cast<double>(color)},
                        {kPropPenScale, scale},
                        {kPropPenStyle, style},
                        {kPropScaleSystem, system},
                        {kPropPenAlignment, alignment}});
    }
    void AddEqual() {
        for (int i = 0; i < 2; ++i)
            Add(1 / kInch, kRed, 2.0, dashed, 2, 1);
    }
    void AddDiffering() {
        Add(1 / kInch, kRed, 2.0, dashed, 2, 1);
        Add(2 / kInch, 0x00FF00, 3.0, kLineStyleByLayer, 0, 0);
    }
    static void ChooseLastStyle(SheetDriver& user) {
        user.Focus(IDC_LINE_STYLE_LIST);
        user.Key(VK_END); // without a selection, the first key selects the item with the caret
        user.Key(VK_END);
    }
    static std::vector<std::string> ShownPen(SheetDriver& user) {
        return Shown(user, {IDC_PEN_WIDTH, IDC_PEN_SCALE, IDC_PEN_STYLE_TEXT, IDC_COLOR, IDC_PEN_ALIGNMENT});
    }

    TableStruct* styles;
    uint16_t dashed;
};

TEST_F(PenPage, ShowsAnEqualPen) {
    AddEqual();
    RunOk([&](SheetDriver& user) {
        EXPECT_EQ(ShownPen(user), (std::vector<std::string>{"1 mm", "2", "DASHED", "000000FF", "1"}));
        EXPECT_NE(user.Selection(IDC_LINE_STYLE_LIST), -1);
        EXPECT_EQ(user.Selection(IDC_SCALE_SYSTEM), 1);
    });
    EXPECT_EQ(kit.Writes(), 0);
    for (const auto& [style, name] : {std::pair(0, "Undefined"), {4242, ""}}) {
        for (size_t i : {0, 1})
            kit[i].properties[kPropPenStyle] = style;
        RunOk([&, name = name](SheetDriver& user) { EXPECT_EQ(name, user.Text(IDC_PEN_STYLE_TEXT)); });
    }
}

TEST_F(PenPage, DifferingPensShowTheirMarkersAndSurviveOk) {
    AddDiffering();
    RunOk([&](SheetDriver& user) {
        EXPECT_EQ(ShownPen(user), (std::vector<std::string>{"*****", "Indeterminate", "Indeterminate", "", "2"}));
        for (const int id : {IDC_LINE_STYLE_LIST, IDC_SCALE_SYSTEM, IDC_COLOR})
            EXPECT_EQ(user.Selection(id), -1) << id;
    });
    EXPECT_EQ(kit.Writes(), 0);
}

TEST_F(PenPage, OneEditOverDifferingPensChangesOneProperty) {
    AddDiffering();
    ExpectEachChangesOneProperty(
        {{kPropPenColor, [](SheetDriver& user) { user.SelectItem(IDC_COLOR, 0); }, int{kDarkest}},
         {kPropPenWidth, [](SheetDriver& user) { user.Type(IDC_PEN_WIDTH, "5 mm"); }, 5 / kInch},
         {kPropPenScale, [](SheetDriver& user) { user.Type(IDC_PEN_SCALE, "4.5"); }, 4.5},
         {kPropPenStyle, ChooseLastStyle, kLineStyleByLayer},
         {kPropScaleSystem, [](SheetDriver& user) { user.SelectItem(IDC_SCALE_SYSTEM, 1); }, 2},
         {kPropPenAlignment, [](SheetDriver& user) { user.Click(IDC_PEN_ALIGNMENT); }, 0}});
}

TEST_F(PenPage, WidthIsConvertedWhenTheScaleSystemChanges) {
    AddEqual();
    RunOk([&](SheetDriver& user) {
        user.Type(IDC_PEN_WIDTH, "7 mm");
        user.SelectItem(IDC_SCALE_SYSTEM, 0);
        double value = 0;
        EXPECT_TRUE(::DrawingStdTextToNumeric(kit.Drawing(), user.Text(IDC_PEN_WIDTH).c_str(), &value, 0));
        EXPECT_NEAR(1 / kInch, value, 1e-4) << "the stored number; the edit was discarded";
        user.SelectItem(IDC_SCALE_SYSTEM, 1);
        EXPECT_EQ(user.Text(IDC_PEN_WIDTH), "1 mm");
    });
    EXPECT_NEAR(1 / kInch, kit[0].Number(kPropPenWidth), 1e-9);
}

TEST_F(PenPage, OffersTheConfiguredWidths) {
    const struct {
        const char* text;
        std::vector<std::string> widths; // except that of the selection
    } kCases[] = {
        {"[PenWidths]\nmm=0.25, 0.5 ,1.00,nonsense\n", {"0.25 mm", "0.5 mm"}},
        {"[PenWidths]\nmm=*other\nother=*in\nin=1\n", {"25.4 mm"}},
        {"[PenWidths]\nmm=*a\na=*mm\n", {}}, // circular
        {"[PenWidths]\nmm=*a23456789012345678901234567890123456789\n", {}},
        {"[PenWidths]\nmm=0.25,     3      ,00000000000000000000000000000000000000000000000003/4,2\n",
         {"0.25 mm", "2 mm", "3 mm"}},
        {"[PenWidths]\nmm=1/4, 3*\n", {"0.25 mm"}},
        {"[Other]\nmm=3\n", {}},
        {"[PenWidths]\nmm=,,,\n", {}},
    };
    AddEqual();
    for (const auto& row : kCases) {
        SCOPED_TRACE(row.text);
        WriteIni(row.text);
        RunOk([&](SheetDriver& user) {
            std::vector<std::string> expected = row.widths, widths;
            expected.push_back("1 mm");
            std::sort(expected.begin(), expected.end());
            const auto count = ::SendMessageA(user.Control(IDC_PEN_WIDTH), CB_GETCOUNT, 0, 0);
            for (int i = 0; i < count; ++i)
                widths.push_back(user.ItemText(IDC_PEN_WIDTH, i));
            EXPECT_EQ(expected, widths);
            EXPECT_EQ(user.Text(IDC_PEN_WIDTH), "1 mm");
        });
    }
}

// The file uses decimal points, whatever the application's decimal mark; the list uses the mark.
TEST_F(PenPage, OffersTheConfiguredWidthsWithTheDecimalMarkOfTheHost) {
    TableStruct* const settings = ::AppGetCurrentApp()->pVariables;
    AddEqual();
    WriteIni("[PenWidths]\nmm=0.25, 0.5\n");
    ::TableSetStringVar(settings, kVarDecimalMark, ",");
    RunOk([&](SheetDriver& user) {
        EXPECT_EQ(user.ItemText(IDC_PEN_WIDTH, 0), "0,25 mm");
        EXPECT_EQ(user.ItemText(IDC_PEN_WIDTH, 1), "0,5 mm");
        user.Focus(IDC_PEN_WIDTH);
        user.Key(VK_UP); // from 1 mm
    });
    ::TableSetStringVar(settings, kVarDecimalMark, ".");
    EXPECT_NEAR(0.5 / kInch, kit[0].Number(kPropPenWidth), 1e-12);
}

// The next keystroke is meant for the field, not for the list of colors.
TEST_F(PenPage, InvalidWidthGetsTheFocus) {
    for (const char* typed : {"abc", "100,5"}) {
        AddEqual();
        RunOk([&](SheetDriver& user) {
            user.Type(IDC_PEN_WIDTH, typed);
            user.Ok();
            ASSERT_TRUE(::IsWindowVisible(user.Sheet()));
            EXPECT_TRUE(::IsChild(user.Control(IDC_PEN_WIDTH), ::GetFocus())) << typed;
            user.Type(IDC_PEN_WIDTH, "2 mm");
        });
        EXPECT_EQ(kit[0].Number(kPropPenColor), kRed);
        EXPECT_NEAR(2 / kInch, kit[0].Number(kPropPenWidth), 1e-12);
    }
}

// Neither values that cannot be formatted nor values out of range.
TEST_F(PenPage, UneditedNumbersAreNotValidated) {
    for (const double invalid : {0.0, -3.0, 1e8, 1e39}) {
        AddEqual();
        for (size_t i : {0, 1}) {
            kit[i].properties[kPropPenScale] = invalid;
            kit[i].properties[kPropPenWidth] = -invalid;
        }
        MessageBoxWatcher boxes;
        RunOk([](SheetDriver& user) {
            user.Type(IDC_PEN_SCALE, "5");
            ::SendMessageA(user.Control(IDC_PEN_SCALE), WM_UNDO, 0, 0);
            user.Click(IDC_PEN_ALIGNMENT);
        });
        EXPECT_TRUE(boxes.Boxes().empty()) << invalid;
        EXPECT_EQ(invalid, kit[0].Number(kPropPenScale));
        EXPECT_EQ(-invalid, kit[0].Number(kPropPenWidth));
        EXPECT_NE(kit[0].Number(kPropPenAlignment), 1);
    }
}

TEST_F(PenPage, RejectsInvalidWidthsAndWritesNothing) {
    AddEqual();
    for (const auto& [control, text] : {std::pair(IDC_PEN_WIDTH, "thick"),
                                        {IDC_PEN_WIDTH, "-1 mm"},
                                        {IDC_PEN_WIDTH, ""},
                                        {IDC_PEN_SCALE, "0"},
                                        {IDC_PEN_SCALE, "1e9"},
                                        {IDC_PEN_SCALE, "1,5,7"}}) {
        SCOPED_TRACE(text);
        const int id = control;
        const std::string typed = text;
        EXPECT_EQ(Run([&](SheetDriver& user, CGraphicPropertyPage&) {
                      MessageBoxWatcher boxes;
                      user.SelectItem(IDC_COLOR, 0);
                      user.Type(id, typed);
                      user.Ok();
                      EXPECT_TRUE(::IsWindowVisible(user.Sheet()));
                  }),
                  IDCANCEL);
        EXPECT_EQ(kit.Writes(), 0);
    }
}

TEST_F(PenPage, LongWidthIsStoredAsTyped) {
    AddEqual();
    RunOk([](SheetDriver& user) { user.Type(IDC_PEN_WIDTH, "0000.0625000000000000 in"); });
    EXPECT_NEAR(0.0625, kit[0].Number(kPropPenWidth), 1e-9);
}

// The host does not know the unit, so a width on paper has no text.
TEST_F(PenPage, WidthThatCannotBeFormattedIsBlank) {
    AddEqual();
    ::TableSetStringVar(kit.Drawing()->pUnits, kUnitPenWidth, "furlong");
    MessageBoxWatcher boxes;
    RunOk([&](SheetDriver& user) {
        EXPECT_EQ(user.Text(IDC_PEN_WIDTH), "");
        user.SelectItem(IDC_SCALE_SYSTEM, 0);
        EXPECT_NE(user.Text(IDC_PEN_WIDTH), "");
        user.SelectItem(IDC_SCALE_SYSTEM, 1);
        EXPECT_EQ(user.Text(IDC_PEN_WIDTH), "");
        user.Type(IDC_PEN_SCALE, "4");
    });
    EXPECT_TRUE(boxes.Boxes().empty());
    EXPECT_EQ(kit[0].Number(kPropPenScale), 4);
    EXPECT_EQ(1 / kInch, kit[0].Number(kPropPenWidth));
    // An infinite width, beside a list of valid ones.
    ::TableSetStringVar(kit.Drawing()->pUnits, kUnitPenWidth, "mm");
    WriteIni("[PenWidths]\nmm=0.25,0.5\n");
    for (size_t i : {0, 1})
        kit[i].properties[kPropPenWidth] = -HUGE_VAL;
    RunOk([&](SheetDriver& user) {
        EXPECT_EQ(::SendMessageA(user.Control(IDC_PEN_WIDTH), CB_GETCOUNT, 0, 0), 2);
        EXPECT_EQ(user.Text(IDC_PEN_WIDTH), "");
        EXPECT_EQ(user.Selection(IDC_PEN_WIDTH), -1);
    });
    EXPECT_EQ(-HUGE_VAL, kit[0].Number(kPropPenWidth));
}

TEST_F(PenPage, StoredScaleOfZeroStaysUntilEdited) {
    Add(1, 0, 0.0, dashed, 2, 1);
    RunOk([&](SheetDriver& user) { EXPECT_EQ(user.Text(IDC_PEN_SCALE), "1.17549e-38"); });
    EXPECT_EQ(kit.Writes(), 0);
    RunOk([&](SheetDriver& user) { user.Type(IDC_PEN_SCALE, "1"); });
    EXPECT_EQ(kit[0].Number(kPropPenScale), 1);
}

// The first click sets the opposite of the last determinate state; the indeterminate state never returns.
TEST_F(PenPage, IndeterminateAlignmentTogglesFromItsFirstClick) {
    AddDiffering();
    RunOk([&](SheetDriver& user) {
        int before = BST_INDETERMINATE;
        for (int i = 0; i < 6; ++i) {
            user.Click(IDC_PEN_ALIGNMENT);
            const int state = user.Check(IDC_PEN_ALIGNMENT);
            EXPECT_NE(state, BST_INDETERMINATE);
            EXPECT_NE(before, state);
            before = state;
        }
    });
}

// The preview graphic follows each edit, ignoring incomplete texts, and no selected graphic changes.
TEST_F(PenPage, ThePreviewFollowsTheControls) {
    AddEqual();
    Run([&](SheetDriver& user, CGraphicPropertyPage& page) {
        EXPECT_EQ(Previewed<unsigned long>(page, kPropPenColor), kRed);
        user.SelectItem(IDC_COLOR, 0);
        EXPECT_EQ(Previewed<unsigned long>(page, kPropPenColor), kDarkest);
        for (const char* width : {"3 mm", "3 ?", "-3 mm"}) {
            user.Type(IDC_PEN_WIDTH, width);
            EXPECT_NEAR(3 / kInch, Previewed(page, kPropPenWidth), 1e-9) << width;
        }
        for (const char* scale : {"0.5", "x", "-1"}) {
            user.Type(IDC_PEN_SCALE, scale);
            EXPECT_NEAR(0.5, Previewed(page, kPropPenScale), 1e-9) << scale;
        }
        ChooseLastStyle(user);
        EXPECT_EQ(unsigned{kLineStyleByLayer}, Previewed<unsigned>(page, kPropPenStyle));
        user.SelectItem(IDC_SCALE_SYSTEM, 0);
        EXPECT_EQ(unsigned{kScaleWorld}, Previewed<unsigned>(page, kPropScaleSystem));
        const auto alignment = Previewed<unsigned>(page, kPropPenAlignment);
        user.Click(IDC_PEN_ALIGNMENT);
        EXPECT_NE(alignment, Previewed<unsigned>(page, kPropPenAlignment));
    });
    EXPECT_EQ(kit.Writes(), 0);
}

TEST_F(PenPage, OutlivesTheStyleTable) {
    AddEqual();
    RunOk([&](SheetDriver& user) {
        ::DrawingDeleteTable(kit.Drawing(), styles);
        user.Focus(IDC_LINE_STYLE_LIST);
        for (const UINT key : {VK_HOME, VK_DOWN, VK_END})
            user.Key(key);
        ::InvalidateRect(user.Sheet(), nullptr, TRUE);
        user.Pump();
        user.Type(IDC_PEN_SCALE, "3");
    });
    EXPECT_EQ(kit[0].Number(kPropPenScale), 3);
}

} // namespace
