// Pages that are created from a table, in a real sheet: each kind of row for equal, differing and absent values, valid
// and rejected edits, the layout, and invalid tables.

#include <algorithm>
#include <limits>
#include <set>
#include <stdexcept>

#include "demo/automation/control_text.h"
#include "drawcore/layer.h"
#include "drawcore/linestyle.h"
#include "drawcore/selection.h"
#include "orlo/controls/combo_control.h"
#include "orlo/host/property.h"
#include "orlo/pages/field_page.h"
#include "orlo/win/child_windows.h"
#include "pages/page_over_kit.h"
#include "support/accessible.h"

namespace {

constexpr unsigned int kPage = 100;
constexpr char kProperty[] = "Value", kOther[] = "Other";
constexpr char kSans[] = "DejaVu Sans", kSerif[] = "DejaVu Serif";
constexpr int kField = CFieldPage::FieldID(0), kOtherField = CFieldPage::FieldID(1);

class FieldPage : public PageOverKit {
protected:
    FieldPage() : PageOverKit(kPage) {
        addPages = [this](CGraphicPropertySheet& sheet) { page = AddFieldPage(&sheet, kPage, table); };
        const double dashes[] = {0.5, -0.25};
        ::LineStyleAdd(::DrawingGetTable(kit.Drawing(), kTableLineStyles), "DASHED", nullptr, dashes, 2);
        ::TableSetStringVar(kit.Drawing()->pUnits, kUnitTextSize, "mm");
        ::TableSetStringVar(kit.Drawing()->pUnits, kUnitFontName, kSans);
        WriteIni("[FontSizes]\nmm=2.5,3.5,5\n");
        table.caption = "Fields";
    }

    FieldRow Row(FieldKind kind, const char* label = "&Value:", const char* property = kProperty) {
        FieldRow row;
        row.kind = kind;
        row.label = label;
        row.property = property;
        if (kind == FieldKind::Choice) row.choices = {"Low", "Middle", "High"};
        return row;
    }
    // The tested row, and one after it that is never touched.
    void SetRow(FieldRow row) { table.rows = {std::move(row), Row(FieldKind::Text, "&Other:", kOther)}; }
    void Add(const KitValue& value) { kit.Add({{kProperty, value}, {kOther, "stays"}}); }

    static bool IsEnabled(SheetDriver& user, int id) { return ::IsWindowEnabled(user.Control(id)) != FALSE; }

    FieldTable table;
    CFieldPage* page = nullptr;
};

// ---- Each kind

struct KindCase {
    const char* name;
    FieldKind kind;
    std::vector<std::string> choices;
    KitValue value, other;
    std::string shown;     // shown for equal values; "" if the host formats it: then any text is expected
    std::string differing; // shown for multiple values
    SheetDriver::Script edit;
    KitValue expected;
    int vt;
};

std::ostream& operator<<(std::ostream& out, const KindCase& kind) {
    return out << kind.name;
}

const std::vector<std::string> kThree = {"Low", "Middle", "High"}, kFour = {"None", "Low", "Middle", "High"};

SheetDriver::Script Typing(const char* text) {
    return [text](SheetDriver& user) { user.Type(kField, text); };
}
SheetDriver::Script Selecting(int index) {
    return [index](SheetDriver& user) { user.SelectItem(kField, index); };
}

const KindCase kKinds[] = {
    {"Text", FieldKind::Text, {}, "wall", "door", "wall", "<Indeterminate>", Typing("roof"), "roof", VT_BSTR},
    {"Lines",
     FieldKind::Lines,
     {},
     "a\r\nb",
     "c",
     "a\r\nb",
     "<Indeterminate>",
     [](SheetDriver& user) {
         user.Type(kField, "one");
         user.Key(VK_RETURN);
         user.Key('2');
     },
     "one\r\n2",
     VT_BSTR},
    {"Integer", FieldKind::Integer, {}, 5, 7, "5", "*****", Typing("12"), 12, VT_I4},
    {"Number", FieldKind::Number, {}, 1234567.25, 3, "1234567.25", "*****", Typing("19.99"), 19.99, VT_R8},
    {"Length", FieldKind::Length, {}, 2.5, 3, "", "*****", Typing("7.25"), 7.25, VT_R8},
    {"Angle", FieldKind::Angle, {}, 0.5, 1, "", "Indeterminate", Typing("90"), std::acos(0.0), VT_R8},
    {"Scale", FieldKind::Scale, {}, 2, 3, "2", "Indeterminate", Typing("4"), 4, VT_R8},
    {"Check", FieldKind::Check, {}, 1, 0, "1", "2", [](SheetDriver& user) { user.Click(kField); }, 0, VT_BOOL},
    {"Radio", FieldKind::Choice, kThree, 0, 2, "1", "0", [](SheetDriver& user) { user.Click(kField + 1); }, 1, VT_I4},
    {"List", FieldKind::Choice, kFour, 1, 2, "Low", "", Selecting(3), 3, VT_I4},
    {"Date", FieldKind::Date, {}, 36526.75, 3, "1/1/2000", "*****", Typing("12/31/1999"), 36525, VT_R8},
    {"Color", FieldKind::Color, {}, 0xFF, 0xFF00, "000000FF", "", Selecting(0), 0x333333, VT_UI4},
    {"Layer", FieldKind::Layer, {}, 1, 2, "00000001", "", Selecting(0), 1, VT_UI4},
    {"LineStyle",
     FieldKind::LineStyle,
     {},
     int{kLineStyleByLayer},
     int{kLineStyleByBlock},
     "0000FFFE",
     "",
     Selecting(0),
     1,
     VT_UI4},
    {"BrushStyle", FieldKind::BrushStyle, {}, 0, 1, "00000000", "", Selecting(0), 0, VT_UI4},
    {"FontFace",
     FieldKind::FontFace,
     {},
     kSans,
     kSerif,
     kSans,
     "",
     [](SheetDriver& user) {
         const auto index = ::SendMessageA(user.Control(kField), CB_FINDSTRINGEXACT, static_cast<WPARAM>(-1),
                                           reinterpret_cast<LPARAM>(kSerif));
         user.SelectItem(kField, static_cast<int>(index));
     },
     kSerif,
     VT_BSTR},
    {"FontHeight", FieldKind::FontHeight, {}, 4.25, 3, "", "", Typing("7.5"), 7.5, VT_R8},
};

class FieldPageKinds : public FieldPage, public ::testing::WithParamInterface<KindCase> {
protected:
    FieldPageKinds() {
        FieldRow row = Row(GetParam().kind);
        row.choices = GetParam().choices;
        SetRow(row);
    }
};

TEST_P(FieldPageKinds, ShowsEqualValuesAndWritesNothing) {
    for (int i = 0; i < 2; ++i)
        Add(GetParam().value);
    RunOk([&](SheetDriver& user) {
        if (GetParam().shown.empty())
            EXPECT_NE(Shown(user, kField), "");
        else
            EXPECT_EQ(Shown(user, kField), GetParam().shown);
        for (int i = 0; i < 12; ++i)
            user.Key(VK_TAB); // round the sheet
    });
    EXPECT_EQ(kit.Writes(), 0);
}

TEST_P(FieldPageKinds, OneEditOfDifferingValuesWritesThatPropertyToAll) {
    Add(GetParam().value);
    Add(GetParam().other);
    RunOk([&](SheetDriver& user) {
        EXPECT_EQ(Shown(user, kField), GetParam().differing);
        user.Focus(kField);
        user.Key(VK_TAB);
    });
    EXPECT_EQ(kit.Writes(), 0) << "moving past a field is not an edit";
    RunOk(GetParam().edit);
    for (size_t i = 0; i < 2; ++i) {
        EXPECT_EQ(kit[i].properties.at(kProperty), GetParam().expected)
            << kit[i].Number(kProperty) << " " << kit[i].Text(kProperty);
        ASSERT_EQ(kit[i].writes.size(), 1u);
        EXPECT_EQ(kit[i].writes[0].vt, GetParam().vt);
    }
}

TEST_P(FieldPageKinds, WithoutThePropertyTheFieldIsDisabledAndEmpty) {
    kit.Add({{kOther, "stays"}});
    RunOk([&](SheetDriver& user) {
        EXPECT_FALSE(IsEnabled(user, kField));
        EXPECT_TRUE(IsEnabled(user, kOtherField));
        const std::string shown = Shown(user, kField);
        EXPECT_TRUE(shown.empty() || shown == "0") << shown;
    });
    EXPECT_EQ(kit.Writes(), 0);
}

TEST_P(FieldPageKinds, ReadOnlyRowCannotBeEdited) {
    table.rows[0].readOnly = true;
    Add(GetParam().value);
    RunOk([&](SheetDriver& user) {
        const std::string shown = Shown(user, kField);
        if (IsEnabled(user, kField)) user.Type(kField, "9");
        EXPECT_EQ(Shown(user, kField), shown);
    });
    EXPECT_EQ(kit.Writes(), 0);
}

TEST_P(FieldPageKinds, CallbacksReplaceTheTable) {
    std::map<GraphicStruct*, FieldValue> values;
    for (const KitValue& value : {GetParam().value, GetParam().other}) {
        kit.Add({{kOther, "stays"}});
        values[kit[kit.Size() - 1].graphic] = {value.number, value.text};
    }
    kit.Add({{kOther, "stays"}}); // neither
    table.rows[0].property = "";
    table.rows[0].get = [&](GraphicStruct* graphic, FieldValue& value) {
        const auto found = values.find(graphic);
        if (found != values.end()) value = found->second;
        return found != values.end();
    };
    table.rows[0].set = [&](GraphicStruct* graphic, const FieldValue& value) {
        values.at(graphic) = value;
        return true;
    };
    RunOk([&](SheetDriver& user) {
        EXPECT_EQ(Shown(user, kField), GetParam().differing);
        GetParam().edit(user);
    });
    for (const auto& [graphic, value] : values) {
        EXPECT_EQ(value.number, GetParam().expected.number);
        EXPECT_EQ(value.text, GetParam().expected.text);
    }
    EXPECT_EQ(values.size(), 2u);
    EXPECT_EQ(kit.Writes(), 0);
}

INSTANTIATE_TEST_SUITE_P(All, FieldPageKinds, ::testing::ValuesIn(kKinds),
                         [](const auto& instance) { return std::string(instance.param.name); });

// ---- Rejected edits

TEST_F(FieldPage, InvalidFieldKeepsThePageAndWritesNothing) {
    struct {
        FieldKind kind;
        double min, max;
        const char* typed;
        const char* message;
    } cases[] = {
        {FieldKind::Integer, 1, 9, "10", "Please enter a whole number from 1 to 9."},
        {FieldKind::Integer, 0, 0, "x", "Please enter a whole number."},
        {FieldKind::Number, -1, 1.5, "2", "Please enter a number from -1 to 1.5."},
        {FieldKind::Number, 0, 0, "2x", "Please enter a number."},
        {FieldKind::Length, 0, 0, "far", "Please enter a valid length."},
        {FieldKind::Angle, 0, 0, "left", "Please enter a valid angle."},
        {FieldKind::Scale, 0, 0, "0", "Please enter a number from 1e-07 to 10000000."},
        {FieldKind::Date, 0, 0, "13/13/2000", "Please enter a valid date."},
        {FieldKind::Date, 36526, 36891, "1/1/2001", "Please enter a date from 1/1/2000 to 12/31/2000."},
        {FieldKind::FontHeight, 0, 0, "tall", "Please enter a valid font size."},
        {FieldKind::Text, 0, 3, "long", ""},
    };
    Add(1);
    for (const auto& rejected : cases) {
        SCOPED_TRACE(rejected.message);
        FieldRow row = Row(rejected.kind);
        row.min = rejected.min;
        row.max = rejected.max;
        SetRow(row);
        MessageBoxWatcher boxes;
        Run([&](SheetDriver& user, CGraphicPropertyPage&) {
            user.Type(kOtherField, "edited");
            user.Type(kField, rejected.typed);
            user.Ok();
            const HWND focus = ::GetFocus();
            EXPECT_TRUE(focus == user.Control(kField) || ::GetParent(focus) == user.Control(kField));
        });
        EXPECT_EQ(kit.Writes(), 0);
        if (*rejected.message)
            EXPECT_EQ(boxes.OnlyText(), rejected.message);
        else
            EXPECT_EQ(boxes.Boxes().size(), 1u);
    }
}

TEST_F(FieldPage, LimitsAreShownInTheFormatOfInput) {
    Add(1);
    FieldRow row = Row(FieldKind::Angle);
    row.max = std::acos(-1.0);
    SetRow(row);
    MessageBoxWatcher boxes;
    Run([&](SheetDriver& user, CGraphicPropertyPage&) {
        user.Type(kField, "270");
        user.Ok();
    });
    EXPECT_NE(boxes.OnlyText().find("180"), std::string::npos) << boxes.OnlyText();
    EXPECT_EQ(kit.Writes(), 0);
}

TEST_F(FieldPage, RowValidatesItsValue) {
    Add(2);
    FieldRow row = Row(FieldKind::Integer);
    row.check = [](const FieldValue& value) {
        return std::fmod(value.number, 2) == 0 ? "" : "An even number, please.";
    };
    SetRow(row);
    MessageBoxWatcher boxes;
    RunOk([&](SheetDriver& user) {
        user.Type(kField, "3");
        user.Ok();
        EXPECT_EQ(boxes.OnlyText(), "An even number, please.");
        user.Type(kField, "4");
    });
    EXPECT_EQ(kit[0].Number(kProperty), 4);
}

TEST_F(FieldPage, RejectedValuesAreCounted) {
    Add(2);
    Add(2);
    kit[1].rejected = kProperty;
    SetRow(Row(FieldKind::Integer));
    MessageBoxWatcher boxes;
    RunOk([&](SheetDriver& user) { user.Type(kField, "3"); });
    EXPECT_EQ(boxes.OnlyText(), "1 of 2 graphics could not be changed.");
}

TEST_F(FieldPage, ListShowsChoicesWithoutMnemonics) {
    Add(1);
    SetRow(Row(FieldKind::Choice));
    table.rows[0].choices = {"&None", "Fire && smoke", "L&ow", "High"};
    RunOk([&](SheetDriver& user) { EXPECT_EQ(Shown(user, kField), "Fire & smoke"); });
}

// Returns the number of pixels of a closed field, without its button, that do not have the color of its background.
int DrawnPixels(HWND field) {
    ::UpdateWindow(field);
    CRect area;
    ::GetClientRect(field, &area);
    area.DeflateRect(5, 5);
    area.right -= ::GetSystemMetrics(SM_CXVSCROLL);
    const HDC dc = ::GetDC(field);
    const COLORREF background = ::GetPixel(dc, area.left, area.top);
    int drawn = 0;
    for (int y = area.top; y < area.bottom; ++y)
        for (int x = area.left; x < area.right; ++x)
            drawn += ::GetPixel(dc, x, y) != background;
    ::ReleaseDC(field, dc);
    return drawn;
}

TEST_F(FieldPage, ABrushIsDrawnOnlyIfItIsTheSame) {
    kit.Add({{"Same", 0}, {"Differing", 0}});
    kit.Add({{"Same", 0}, {"Differing", 1}});
    table.rows = {Row(FieldKind::BrushStyle, "Same:", "Same"), Row(FieldKind::BrushStyle, "Differing:", "Differing")};
    RunOk([&](SheetDriver& user) {
        for (const int id : {kField, kOtherField}) { // as the C interface fills it
            const ControlFillRecord fill = {::DrawingGetTable(kit.Drawing(), kTableBrushStyles), 0, kBrushStyleNone};
            ::SendMessageA(user.Control(id), kFillMessage, 0, reinterpret_cast<LPARAM>(&fill));
        }
        dynamic_cast<CFieldPage*>(CWnd::FromHandlePermanent(user.Page()))->Reload();
        EXPECT_GT(DrawnPixels(user.Control(kField)), 0) << "No Brush";
        EXPECT_EQ(DrawnPixels(user.Control(kOtherField)), 0);
    });
}

TEST_F(FieldPage, AColorThatIsNotListedIsShown) {
    kit.Add({{"Same", 0x030201}, {"Differing", 0x030201}});
    kit.Add({{"Same", 0x030201}, {"Differing", 0x040201}});
    table.rows = {Row(FieldKind::Color, "Same:", "Same"), Row(FieldKind::Color, "Differing:", "Differing")};
    RunOk([&](SheetDriver& user) {
        const auto described = [&](int id) {
            return dynamic_cast<CComboControl*>(CWnd::FromHandlePermanent(user.Control(id)))->DescribeItem(-1);
        };
        EXPECT_EQ(described(kField), "1, 2, 3");
        EXPECT_EQ(described(kOtherField), "varied");
    });
    EXPECT_EQ(kit.Writes(), 0);
}

// Shown as another number, it would be stored as that.
TEST_F(FieldPage, ANumberThatTheKindCannotRepresentIsNoValue) {
    const double infinite = std::numeric_limits<double>::infinity();
    const struct {
        FieldKind kind;
        double number;
    } cases[] = {{FieldKind::Integer, 2.5},     {FieldKind::Integer, 3e9},         {FieldKind::Choice, -3e9},
                 {FieldKind::Color, -1},        {FieldKind::Layer, 5e9},           {FieldKind::Integer, std::nan("")},
                 {FieldKind::Number, infinite}, {FieldKind::Length, std::nan("")}, {FieldKind::Date, infinite}};
    kit.Add({{kOther, "stays"}});
    table.rows.clear();
    for (const auto& wrong : cases) {
        FieldRow row = Row(wrong.kind, "Value:", "");
        row.get = [number = wrong.number](GraphicStruct*, FieldValue& value) {
            value.number = number;
            return true;
        };
        row.set = [](GraphicStruct*, const FieldValue&) { return true; };
        table.rows.push_back(row);
    }
    RunOk([&](SheetDriver& user) {
        for (size_t i = 0; i < table.rows.size(); ++i)
            EXPECT_FALSE(IsEnabled(user, CFieldPage::FieldID(i))) << cases[i].number;
    });
}

TEST_F(FieldPage, MissingFaceIsShown) {
    Add("Not Installed");
    SetRow(Row(FieldKind::FontFace));
    RunOk([&](SheetDriver& user) { EXPECT_EQ(Shown(user, kField), "Not Installed"); });
    EXPECT_EQ(kit.Writes(), 0);
}

// An edit control accepts no more than 32 KB by default.
TEST_F(FieldPage, ALongTextCanBeExtended) {
    std::string text;
    for (int line = 0; line < 700; ++line)
        text += "A line of about fifty characters, with its end.\r\n";
    Add(text.c_str());
    SetRow(Row(FieldKind::Lines));
    RunOk([&](SheetDriver& user) {
        user.Focus(kField);
        ::SendMessageA(user.Control(kField), EM_SETSEL, text.size(), static_cast<LPARAM>(text.size()));
        user.Key('1');
    });
    EXPECT_TRUE(kit[0].Text(kProperty) == text + "1");
}

TEST_F(FieldPage, RestoredTextIsNotAnEdit) {
    kit.Add({{kProperty, 1.23456789012345}, {kOther, "stays"}});
    SetRow(Row(FieldKind::Number));
    RunOk([&](SheetDriver& user) {
        const std::string shown = user.Text(kField);
        user.Type(kField, "7");
        user.Type(kField, shown);
    });
    EXPECT_EQ(kit.Writes(), 0);
}

// ---- Buttons, help, preview, filter

TEST_F(FieldPage, ButtonReloadsUneditedFields) {
    Add(1);
    table.rows = {Row(FieldKind::Integer), Row(FieldKind::Text, "&Other:", kOther), Row(FieldKind::Button, "...", "")};
    table.rows[2].press = [&] {
        kit[0].properties[kProperty] = 42;
        kit[0].properties[kOther] = "by the button";
        return true;
    };
    RunOk([&](SheetDriver& user) {
        user.Type(kOtherField, "typed");
        user.Click(CFieldPage::FieldID(2));
        EXPECT_EQ(user.Text(kField), "42");
        EXPECT_EQ(user.Text(kOtherField), "typed");
    });
    EXPECT_EQ(kit[0].Text(kOther), "typed");
    EXPECT_EQ(kit.Writes(), 1);
}

TEST_F(FieldPage, FocusReportsTheHelpOfTheField) {
    Add(1);
    SetRow(Row(FieldKind::Integer));
    table.rows[0].help = "How many";
    std::vector<std::string> statusTexts;
    table.onStatus = [&](const std::string& help) { statusTexts.push_back(help); };
    RunOk([&](SheetDriver& user) {
        user.Focus(kField);
        user.Key(VK_TAB);
        user.Key(VK_TAB, true);
    });
    ASSERT_GE(statusTexts.size(), 3u);
    EXPECT_EQ((std::vector<std::string>(statusTexts.end() - 3, statusTexts.end())),
              (std::vector<std::string>{"How many", "", "How many"}));
}

TEST_F(FieldPage, ThePreviewFollowsItsRows) {
    table.rows = {Row(FieldKind::Color, "&Color:", kPropPenColor), Row(FieldKind::Number, "&Value:", kPropPenWidth)};
    table.rows[0].inPreview = true;
    GraphicStruct* const added = ::GraphicAdd(::DrawingGetRoot(kit.Drawing()), ::GraphicNewEx(kGraphicPenBrush, 0, 1));
    ::SelectionAdd(kit.Selection(), added);
    TestSheet sheet(kit);
    AddFieldPage(&sheet.Sheet(), kPage, table);
    sheet.Run([&](SheetDriver& user) {
        auto& shown = static_cast<CGraphicPropertyPage&>(*sheet.Sheet().GetActivePage());
        ASSERT_NE(shown.GetPreviewGraphic(), nullptr);
        user.SelectItem(kField, 0);
        EXPECT_EQ(orlo::host::ReadProperty<uint32_t>(shown.GetPreviewGraphic(), kPropPenColor), kDarkest);
        EXPECT_NE(orlo::host::ReadProperty<uint32_t>(added, kPropPenColor), kDarkest);
    });
}

TEST_F(FieldPage, IsAddedOnlyForAcceptedGraphics) {
    kit.Add({{kProperty, 1}, {kOther, ""}}, kGraphicText);
    kit.Add({{kProperty, 2}, {kOther, ""}}, kGraphicInsert);
    SetRow(Row(FieldKind::Integer));
    table.accepts = [](GraphicStruct* graphic) { return graphic->bType == kGraphicInsert; };
    RunOk([&](SheetDriver& user) {
        EXPECT_EQ(user.Text(kField), "2");
        user.Type(kField, "5");
    });
    EXPECT_EQ(kit[0].Number(kProperty), 1);
    EXPECT_EQ(kit[1].Number(kProperty), 5);
    TestSheet sheet(kit);
    table.accepts = [](GraphicStruct*) { return false; };
    EXPECT_EQ(AddFieldPage(&sheet.Sheet(), kPage, table), nullptr);
}

// ---- Layout and keyboard

FieldTable LongTable(size_t rows) {
    FieldTable table;
    table.caption = "Long";
    for (size_t i = 0; i < rows; ++i) {
        FieldRow row;
        row.label = "Row " + std::to_string(i) + ":";
        row.property = "P" + std::to_string(i);
        row.group = i % 10 < 6 ? "Group " + std::to_string(i / 10) : "";
        table.rows.push_back(row);
    }
    return table;
}

// Checks that fields and labels of a page do not overlap and are all inside its contents.
void ExpectNoOverlap(HWND page) {
    std::vector<RECT> places;
    ForEachChild(page, [&](HWND control) {
        const bool isBox = (::GetWindowLongA(control, GWL_STYLE) & BS_TYPEMASK) == BS_GROUPBOX &&
                           (::SendMessageA(control, WM_GETDLGCODE, 0, 0) & DLGC_STATIC);
        if (::GetParent(control) == page && !isBox) places.push_back(PlaceIn(page, control));
    });
    RECT both;
    for (size_t i = 0; i < places.size(); ++i) {
        EXPECT_GE(places[i].left, 0);
        for (size_t k = 0; k < i; ++k)
            EXPECT_FALSE(::IntersectRect(&both, &places[i], &places[k])) << i << " lies on " << k;
    }
}

TEST_F(FieldPage, EveryKindIsLaidOutWithoutOverlap) {
    Add(1);
    table.rows.clear();
    for (auto kind = FieldKind::Text; kind <= kLastFieldKind;
         kind = static_cast<FieldKind>(static_cast<int>(kind) + 1)) {
        const bool hasValue = kind < FieldKind::Button;
        FieldRow row = Row(kind, "A label:", hasValue ? ("P" + std::to_string(static_cast<int>(kind))).c_str() : "");
        row.unit = kind == FieldKind::Number ? "kg/m" : "";
        if (kind == FieldKind::Button) row.press = [] { return false; };
        table.rows.push_back(row);
    }
    RunOk([&](SheetDriver& user) { ExpectNoOverlap(user.Page()); });
}

TEST_F(FieldPage, ThirtyRowsFitWithoutScrolling) {
    Add(1);
    table = LongTable(30);
    RunOk([&](SheetDriver& user) {
        ExpectNoOverlap(user.Page());
        const int last = CFieldPage::FieldID(29);
        EXPECT_GT(PlaceIn(user.Page(), user.Control(last)).left, PlaceIn(user.Page(), user.Control(kField)).right);
        EXPECT_FALSE(::GetWindowLongA(user.Page(), GWL_STYLE) & WS_VSCROLL);
    });
}

TEST_F(FieldPage, SmallPageDoesNotShrinkTheOthers) {
    Add(1);
    SetRow(Row(FieldKind::Text));
    TestSheet sheet(kit);
    sheet.Sheet().SetActivePage(AddFieldPage(&sheet.Sheet(), kPage, table)); // the sheet opens on it
    SheetDriver().Run(sheet.Sheet(), [&](SheetDriver& user) {
        user.SelectPage(0);
        RECT general = {0, 0, 200, 160}, now; // dialog units
        ::MapDialogRect(user.Page(), &general);
        ::GetClientRect(user.Page(), &now);
        EXPECT_GE(now.right, general.right);
        EXPECT_GE(now.bottom, general.bottom);
    });
}

TEST_F(FieldPage, TwoHundredRowsScrollToTheFocus) {
    kit.Add({{"P199", "last"}});
    table = LongTable(200);
    RunOk([&](SheetDriver& user) {
        RECT client, sheet;
        ::GetClientRect(user.Page(), &client);
        ::GetWindowRect(user.Sheet(), &sheet);
        EXPECT_LE(sheet.bottom - sheet.top, ::GetSystemMetrics(SM_CYSCREEN));
        EXPECT_TRUE(::GetWindowLongA(user.Page(), GWL_STYLE) & WS_VSCROLL);
        ExpectNoOverlap(user.Page());
        const HWND last = user.Control(CFieldPage::FieldID(199));
        EXPECT_GT(PlaceIn(user.Page(), last).bottom, client.bottom);
        user.Focus(CFieldPage::FieldID(199)); // the only one that is enabled
        EXPECT_LE(PlaceIn(user.Page(), last).bottom, client.bottom);
        EXPECT_LE(PlaceIn(user.Page(), last).right, client.right);
        user.Type(CFieldPage::FieldID(199), "edited");
        const RECT before = PlaceIn(user.Page(), last);
        ::SendMessageA(user.Page(), WM_MOUSEWHEEL, MAKEWPARAM(0, WHEEL_DELTA), 0);
        EXPECT_GT(PlaceIn(user.Page(), last).top, before.top);
        ::SendMessageA(user.Page(), WM_VSCROLL, SB_TOP, 0);
        EXPECT_EQ(PlaceIn(user.Page(), user.Control(kField)).top > 0, true);
    });
    EXPECT_EQ(kit[0].Text("P199"), "edited");
}

TEST_F(FieldPage, TabKeyFollowsTheOrderOfTheRows) {
    std::map<std::string, KitValue> values;
    for (int i = 0; i < 24; ++i)
        values["P" + std::to_string(i)] = "x";
    kit.Add(values);
    table = LongTable(24); // two columns
    RunOk([&](SheetDriver& user) {
        user.Focus(kField);
        for (size_t i = 1; i < 24; ++i) {
            user.Key(VK_TAB);
            EXPECT_EQ(::GetFocus(), user.Control(CFieldPage::FieldID(i))) << i;
        }
    });
}

TEST_F(FieldPage, LaterDuplicateMnemonicIsRemoved) {
    kit.Add({{"A", "a"}, {"B", "b"}, {"C", "c"}});
    table.rows = {Row(FieldKind::Text, "&Name:", "A"), Row(FieldKind::Text, "&number && more:", "B"),
                  Row(FieldKind::Text, "Nu&mber:", "C")};
    RunOk([&](SheetDriver& user) {
        user.Mnemonic('n');
        EXPECT_EQ(::GetFocus(), user.Control(kField));
        user.Mnemonic('n');
        EXPECT_EQ(::GetFocus(), user.Control(kField)) << "no other name begins with the letter";
        user.Mnemonic('m');
        EXPECT_EQ(::GetFocus(), user.Control(CFieldPage::FieldID(2)));
        EXPECT_EQ(WindowText(::GetWindow(user.Control(kOtherField), GW_HWNDPREV)), "number && more:");
    });
}

TEST_F(FieldPage, AMnemonicOfTheButtonsIsRemoved) {
    kit.Add({{"A", "a"}, {"B", "b"}, {"C", "c"}, {"D", "d"}});
    table.rows = {Row(FieldKind::Text, "&Rating:", "A"), Row(FieldKind::Text, "Unit &cost:", "B"),
                  Row(FieldKind::Text, "&Area:", "C"), Row(FieldKind::Text, "&Height:", "D")};
    RunOk([&](SheetDriver& user) {
        for (size_t i = 0; i < 4; ++i) {
            const HWND label = ::GetWindow(user.Control(CFieldPage::FieldID(i)), GW_HWNDPREV);
            EXPECT_EQ(WindowText(label).find('&'), std::string::npos) << WindowText(label);
        }
    });
}

TEST_F(FieldPage, EveryFieldHasAName) {
    Add(1);
    table.rows = {Row(FieldKind::Text, "&Name:", "A"), Row(FieldKind::Check, "&Visible", "B"),
                  Row(FieldKind::Color, "&Color:", kProperty)};
    RunOk([&](SheetDriver& user) {
        for (size_t i = 0; i < 3; ++i) {
            const HWND control = user.Control(CFieldPage::FieldID(i));
            std::string name = Accessible(control).Name();
            if (name.empty()) name = WindowText(::GetWindow(control, GW_HWNDPREV)); // as Windows finds it
            EXPECT_NE(name, "") << i;
        }
    });
}

TEST_F(FieldPage, HasTheReadingDirectionOfTheOwner) {
    Add(1);
    SetRow(Row(FieldKind::Text));
    ::PropPageInit();
    CWnd owner;
    ASSERT_TRUE(owner.CreateEx(WS_EX_LAYOUTRTL, AfxRegisterWndClass(0), "owner", WS_POPUP | WS_VISIBLE, 0, 0, 50, 50,
                               nullptr, nullptr));
    const std::unique_ptr<CGraphicPropertySheet> sheet(
        ::InitGraphicPropertySheet(&owner, nullptr, kit.Drawing(), kit.Selection(), kAllGraphics));
    AddFieldPage(sheet.get(), kPage, table);
    SheetDriver().Run(*sheet, [&](SheetDriver& user) {
        user.SelectPage(1);
        RECT label, field;
        ::GetWindowRect(::GetWindow(user.Control(kField), GW_HWNDPREV), &label);
        ::GetWindowRect(user.Control(kField), &field);
        EXPECT_GT(label.left, field.left);
    });
}

// ---- Invalid tables

struct WrongTable {
    const char* name;
    std::function<void(FieldTable&)> damage;
    const char* message;
};

TEST_F(FieldPage, InvalidTableIsRejectedWithItsRow) {
    const WrongTable cases[] = {
        {"no rows", [](FieldTable& t) { t.rows.clear(); }, "the table does not have 1 to 1000 rows"},
        {"too many", [](FieldTable& t) { t.rows.resize(1001); }, "the table does not have 1 to 1000 rows"},
        {"kind 0", [](FieldTable& t) { t.rows[1].kind = static_cast<FieldKind>(0); },
         "row 1 (\"&Other:\"): the kind is unknown"},
        {"kind 99", [](FieldTable& t) { t.rows[1].kind = static_cast<FieldKind>(99); },
         "row 1 (\"&Other:\"): the kind is unknown"},
        {"label", [](FieldTable& t) { t.rows[0].label = ""; }, "row 0 (\"\"): the label is empty"},
        {"property", [](FieldTable& t) { t.rows[0].property = ""; },
         "row 0 (\"&Value:\"): it has neither a property nor a function that reads the value"},
        {"two of a name", [](FieldTable& t) { t.rows[1].property = kProperty; },
         "row 1 (\"&Other:\"): an earlier row has the property \"Value\""},
        {"limits",
         [](FieldTable& t) {
             t.rows[0].min = 2;
             t.rows[0].max = 1;
         },
         "row 0 (\"&Value:\"): the lower limit is above the upper one"},
        {"choice", [](FieldTable& t) { t.rows[1].kind = FieldKind::Choice; }, "row 1 (\"&Other:\"): it has no choices"},
        {"choice without text",
         [](FieldTable& t) {
             t.rows[1].kind = FieldKind::Choice;
             t.rows[1].choices = {"x", ""};
         },
         "row 1 (\"&Other:\"): the text of a choice is empty"},
        {"choices", [](FieldTable& t) { t.rows[1].choices = {"x"}; },
         "row 1 (\"&Other:\"): its kind cannot have choices"},
        {"set", [](FieldTable& t) { t.rows[1].set = [](GraphicStruct*, const FieldValue&) { return true; }; },
         "row 1 (\"&Other:\"): it has a function to write the value, but none to read it"},
        {"get", [](FieldTable& t) { t.rows[1].get = [](GraphicStruct*, FieldValue&) { return true; }; },
         "row 1 (\"&Other:\"): it has no function that writes the value, and is not read-only"},
        {"button",
         [](FieldTable& t) {
             t.rows[1].kind = FieldKind::Button;
             t.rows[1].property = "";
         },
         "row 1 (\"&Other:\"): the button does nothing"},
        {"note", [](FieldTable& t) { t.rows[1].kind = FieldKind::Note; },
         "row 1 (\"&Other:\"): its kind cannot have a property"},
    };
    for (const WrongTable& wrong : cases) {
        SCOPED_TRACE(wrong.name);
        SetRow(Row(FieldKind::Integer));
        wrong.damage(table);
        try {
            const CFieldPage made(kPage, table);
            ADD_FAILURE() << "accepted";
        } catch (const std::invalid_argument& rejection) {
            EXPECT_STREQ(rejection.what(), wrong.message);
        }
    }
    SetRow(Row(FieldKind::Integer));
    for (const unsigned number : {0u, 29000u})
        EXPECT_THROW(CFieldPage(number, table), std::invalid_argument);
}

} // namespace
