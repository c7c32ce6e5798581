// A user at every field of every page: types or chooses, takes it back, applies, leaves and returns. Afterwards each graphic has
// bit for bit what it had, or what the host reads of the text.

#include <gtest/gtest.h>

#include <cfloat>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <random>
#include <set>

#include "orlo/pages/insert_parts.h"
#include "pages/page_over_kit.h"

namespace {

constexpr double kInch = 25.4, kRadiansPerDegree = 0.017453292519943295;

enum class Action { Nothing, Undo, Retype, Apply, ApplyTwice, LeaveAndReturn, Cancel, ApplyAnother };
constexpr Action kActions[] = {Action::Nothing, Action::Undo,        Action::Retype,
                               Action::Apply,   Action::ApplyTwice,  Action::LeaveAndReturn,
                               Action::Cancel,  Action::ApplyAnother};

using Host = DrawingStruct*;

// A field into which a number is typed, and the number that is stored for a text.
struct NumberField {
    unsigned int page;
    int control;
    const char* property;            // null for a part of an insertion
    double (InsertParts::*group)[3]; // of an insertion
    int axis;
    double least, most;                // what is typed
    double (*read)(Host, const char*); // as the host reads it
    double unit;                       // of stored numbers
};

double PlainNumber(Host, const char* text) {
    char* end = nullptr;
    return static_cast<double>(static_cast<float>(::StringToDouble(0, text, &end)));
}
double Degrees(Host, const char* text) {
    return PlainNumber(nullptr, text) * kRadiansPerDegree;
}
double PenWidth(Host drawing, const char* text) {
    double value = 0;
    EXPECT_TRUE(::UnitsTextToNumericEx(drawing->pUnits, kUnitPenWidth, 0, text, &value));
    return value * kInchesPerMillimetre;
}
double Angle(Host drawing, const char* text) {
    double value = 0;
    EXPECT_TRUE(::DrawingStdTextToAngle(drawing, text, &value, 0));
    return value;
}
double Height(Host drawing, const char* text) {
    double value = 0;
    EXPECT_TRUE(::DrawingStdTextToNumeric(drawing, text, &value, 1));
    return value;
}

constexpr auto kPosition = &InsertParts::position;
constexpr auto kScale = &InsertParts::scale;
constexpr auto kRotation = &InsertParts::rotation;

const NumberField kNumbers[] = {
    {IDD_PEN_PAGE, IDC_PEN_WIDTH, kPropPenWidth, nullptr, 0, 0, 100, PenWidth, 1 / kInch},
    {IDD_PEN_PAGE, IDC_PEN_SCALE, kPropPenScale, nullptr, 0, 1e-3, 1e6, PlainNumber, 1},
    {IDD_BRUSH_PAGE, IDC_BRUSH_SCALE, kPropBrushScale, nullptr, 0, 1e-3, 1e6, PlainNumber, 1},
    {IDD_BRUSH_PAGE, IDC_BRUSH_ANGLE, kPropBrushAngle, nullptr, 0, -360, 360, Angle, kRadiansPerDegree},
    {IDD_TEXT_PAGE, IDC_FONT_SIZE, kPropTextSize, nullptr, 0, 1e-3, 1e4, Height, 1},
    {IDD_INSERT_PAGE, IDC_SCALE_X, nullptr, kScale, 0, 0.01, 999, PlainNumber, 1},
    {IDD_INSERT_PAGE, IDC_SCALE_Y, nullptr, kScale, 1, 0.01, 999, PlainNumber, 1},
    {IDD_INSERT_PAGE, IDC_SCALE_Z, nullptr, kScale, 2, 0.01, 999, PlainNumber, 1},
    {IDD_INSERT_PAGE, IDC_POSITION_X, nullptr, kPosition, 0, -1e7, 1e7, PlainNumber, 1},
    {IDD_INSERT_PAGE, IDC_POSITION_Y, nullptr, kPosition, 1, -1e7, 1e7, PlainNumber, 1},
    {IDD_INSERT_PAGE, IDC_POSITION_Z, nullptr, kPosition, 2, -1e7, 1e7, PlainNumber, 1},
    {IDD_INSERT_PAGE, IDC_ROTATION_X, nullptr, kRotation, 0, -80, 80, Degrees, kRadiansPerDegree},
    {IDD_INSERT_PAGE, IDC_ROTATION_Y, nullptr, kRotation, 1, -80, 80, Degrees, kRadiansPerDegree},
    {IDD_INSERT_PAGE, IDC_ROTATION_Z, nullptr, kRotation, 2, -80, 80, Degrees, kRadiansPerDegree}};

// A control in which something is chosen: a list, or a button that is clicked.
struct ChoiceField {
    unsigned int page;
    int control;
    const char* property;
};

const ChoiceField kChoices[] = {{IDD_GENERAL_PAGE, IDC_LAYER, kPropLayer},
                                {IDD_PEN_PAGE, IDC_COLOR, kPropPenColor},
                                {IDD_PEN_PAGE, IDC_LINE_STYLE_LIST, kPropPenStyle},
                                {IDD_PEN_PAGE, IDC_SCALE_SYSTEM, kPropScaleSystem},
                                {IDD_PEN_PAGE, IDC_PEN_ALIGNMENT, kPropPenAlignment},
                                {IDD_BRUSH_PAGE, IDC_BRUSH_COLOR, kPropBrushColor},
                                {IDD_BRUSH_PAGE, IDC_BRUSH_STYLE_LIST, kPropBrushStyle},
                                {IDD_BRUSH_PAGE, IDC_HATCH_CROSS, kPropHatchCross},
                                {IDD_BRUSH_PAGE, IDC_DRAW_WINDING, kPropBrushDrawMode},
                                {IDD_BRUSH_PAGE, IDC_DRAW_ALTERNATE, kPropBrushDrawMode},
                                {IDD_TEXT_PAGE, IDC_FONT_FACE, kPropTextFont},
                                {IDD_TEXT_PAGE, IDC_FONT_STYLE, kPropTextStyle},
                                {IDD_TEXT_PAGE, IDC_TEXT_COLOR, kPropPenColor},
                                {IDD_TEXT_PAGE, IDC_STRIKETHROUGH, kPropTextStyle},
                                {IDD_TEXT_PAGE, IDC_HIDDEN, kPropTextStyle},
                                {IDD_TEXT_PAGE, IDC_ALL_CAPS, kPropTextStyle},
                                {IDD_TEXT_PAGE, IDC_UNDERLINE, kPropTextStyle},
                                {IDD_TEXT_PAGE, IDC_TEXT_BOX, kPropTextStyle},
                                {IDD_TEXT_PAGE, IDC_JUSTIFY_LEFT, kPropTextFormat},
                                {IDD_TEXT_PAGE, IDC_JUSTIFY_RIGHT, kPropTextFormat}};

using Bits = std::vector<uint64_t>; // of every number of every graphic

uint64_t BitsOf(double value) {
    uint64_t bits;
    std::memcpy(&bits, &value, sizeof bits);
    return bits;
}

class Edits : public ::testing::Test {
protected:
    Edits() {
        kit = std::make_unique<GraphicKit>();
        frame = std::make_unique<HostFrame>(kit->Drawing());
    }
    ~Edits() override { EndKit(); }

    void EndKit() {
        frame.reset();
        kit.reset();
    }

    int Below(int bound) { return static_cast<int>(random() % static_cast<unsigned>(bound)); }
    double Between(double least, double most) {
        return std::uniform_real_distribution<double>(least, most)(random);
    }
    // Fifteen digits, or few.
    std::string TypedNumber(const NumberField& field) {
        char text[40];
        std::snprintf(text, sizeof text, Below(3) ? "%.15g" : "%.3g", Between(field.least, field.most));
        return text;
    }

    // The values of a selection: equal, equal but for the last digits, or different.
    std::vector<double> Values(double least, double most, int count) {
        std::vector<double> values;
        const int kind = Below(3);
        const double first = Between(least, most);
        for (int i = 0; i < count; ++i)
            values.push_back(kind == 0 ? first : kind == 1 ? first * (1 + i * 1e-7) : Between(least, most));
        return values;
    }

    // A drawing with up to three graphics of the kind that the page is for.
    void MakeSelection(unsigned int page) {
        EndKit();
        kit = std::make_unique<GraphicKit>();
        frame = std::make_unique<HostFrame>(kit->Drawing());
        TableStruct* const layers = ::DrawingGetTable(kit->Drawing(), kTableLayers);
        const uint16_t walls = ::TableEntryAdd(layers, "Walls", nullptr);
        ::TableEntryAdd(layers, "Doors", nullptr);
        ::TableSetStringVar(kit->Drawing()->pUnits, kUnitPenWidth, "mm");
        ::TableSetStringVar(kit->Drawing()->pUnits, kUnitFontName, "DejaVu Sans");
        const int count = 1 + Below(3);
        std::map<const char*, std::vector<double>> numbers;
        for (const NumberField& field : kNumbers)
            if (field.property)
                numbers[field.property] = Values(field.least * field.unit, field.most * field.unit, count);
        const bool alike = Below(2);
        TableStruct* const blocks = ::BlocksFromDrawing(kit->Drawing());
        const uint16_t block = ::BlocksAddBlock(blocks, "FLAG", ::GraphicNewEx(kGraphicVertices, 0, 1));
        std::vector<std::vector<double>> parts;
        for (const NumberField& field : kNumbers)
            if (!field.property)
                parts.push_back(Values(field.least * field.unit, field.most * field.unit, count));
        for (int i = 0; i < count; ++i) {
            const int odd = alike ? 0 : i;
            std::map<std::string, KitValue> values = {
                {kPropLayer, odd == 0 ? int{walls} : 0},
                {kPropInfo, odd % 2 ? "oak" : "elm"},
                {kPropPenColor, odd ? 255.0 : 0.0},
                {kPropPenStyle, kLineStyleByLayer},
                {kPropScaleSystem, kScalePaper},
                {kPropPenAlignment, odd % 2},
                {kPropBrushColor, odd ? 255.0 : 0.0},
                {kPropBrushStyle, 6}, // a hatch, whatever differs
                {kPropHatchCross, odd % 2},
                {kPropBrushDrawMode, odd % 2},
                {kPropTextFont, odd % 2 ? "DejaVu Serif" : "No Such Font"},
                {kPropTextStyle, odd * 0x1143 & 0xFFFF},
                {kPropTextFormat, odd % 3}};
            for (const auto& [name, of] : numbers)
                values[name] = of[static_cast<size_t>(i)];
            KitGraphic& graphic = kit->Add(std::move(values), TypeFor(page));
            if (page != IDD_INSERT_PAGE) continue;
            InsertParts insertion{};
            size_t part = 0;
            for (const NumberField& field : kNumbers)
                if (!field.property)
                    (insertion.*field.group)[field.axis] = parts[part++][static_cast<size_t>(i)];
            ::InsertSetData(graphic.graphic, blocks, block, nullptr);
            ::InsertSetParts(graphic.graphic, &insertion);
        }
    }
    static int TypeFor(unsigned int page) {
        return page == IDD_TEXT_PAGE     ? kGraphicText
               : page == IDD_INSERT_PAGE ? kGraphicInsert
                                         : kGraphicPenBrush;
    }

    // Everything but that property, or every number of insertions.
    Bits State(const std::string& except) const {
        Bits bits;
        for (size_t i = 0; i < kit->Size(); ++i) {
            for (const auto& [name, value] : (*kit)[i].properties) {
                if (name == except) continue;
                bits.push_back(BitsOf(value.number));
                bits.push_back(std::hash<std::string>()(value.text));
            }
            for (const double number : Corners(i))
                bits.push_back(BitsOf(number));
        }
        return bits;
    }
    std::vector<double> Corners(size_t i) const {
        std::vector<double> numbers;
        if ((*kit)[i].graphic->bType == kGraphicInsert)
            for (const VertexStruct* v : orlo::host::Vertices((*kit)[i].graphic))
                numbers.insert(numbers.end(), {v->x, v->y, v->z});
        return numbers;
    }
    // The corners of insertion i with another part.
    std::vector<double> CornersWith(size_t i, const NumberField& field, double part) {
        GraphicStruct* const graphic = (*kit)[i].graphic;
        const std::vector<double> before = Corners(i);
        InsertParts from{};
        ReadInsertParts(graphic, from);
        InsertParts to = from;
        (to.*field.group)[field.axis] = part;
        ChangeInsertParts(graphic, from, to);
        std::vector<double> after = Corners(i);
        size_t at = 0;
        for (VertexStruct* v : orlo::host::Vertices(graphic)) {
            ::VertexSet(v, before[at], before[at + 1], before[at + 2]);
            at += 3;
        }
        return after;
    }

    int Run(unsigned int id, const std::function<void(SheetDriver&, CGraphicPropertyPage&)>& script) {
        TestSheet sheet(*kit);
        for (size_t i = 0; i < kit->Size(); ++i)
            ::AddGraphicPropertyPage(nullptr, (*kit)[i].graphic, &sheet.Sheet());
        return sheet.Run([&](SheetDriver& user) {
            auto* page = sheet.Sheet().FindPage(id);
            ASSERT_NE(nullptr, page);
            sheet.Sheet().SetActivePage(page);
            script(user, static_cast<CGraphicPropertyPage&>(*page));
        });
    }

    // As a pane does: writes, and loads what was written.
    static void Apply(CGraphicPropertyPage& page) {
        ASSERT_TRUE(page.OnKillActive());
        page.OnOK();
        page.OnSetActive();
        page.UpdateData(FALSE);
        page.SetModified(FALSE);
    }
    // A control of the page besides the one that is edited, its property, and a change of it.
    static const char* ChangeAnother(SheetDriver& user, unsigned int page) {
        switch (page) {
        case IDD_PEN_PAGE:
            user.Click(IDC_PEN_ALIGNMENT);
            return kPropPenAlignment;
        case IDD_BRUSH_PAGE:
            user.Click(IDC_DRAW_WINDING);
            return kPropBrushDrawMode;
        case IDD_TEXT_PAGE:
            user.Click(IDC_JUSTIFY_CENTER);
            return kPropTextFormat;
        default:
            return "";
        }
    }
    static void LeaveAndReturn(SheetDriver& user) {
        const int page = user.ActivePage();
        user.SelectPage(page ? 0 : 1);
        user.SelectPage(page);
    }

    std::mt19937 random{20261126};
    std::unique_ptr<GraphicKit> kit;
    std::unique_ptr<HostFrame> frame;
};

bool IsTakenBack(Action action) {
    return action == Action::Undo || action == Action::Retype || action == Action::Cancel ||
           action == Action::ApplyAnother;
}

TEST_F(Edits, StoreWhatWasTypedOrLeaveTheLastBit) {
    for (int round = 0; round < 2; ++round)
        for (const NumberField& field : kNumbers)
            for (const Action action : kActions) {
                MakeSelection(field.page);
                std::string typed = TypedNumber(field), first, another;
                SCOPED_TRACE(std::to_string(field.page) + " " + std::to_string(field.control) + " " + typed +
                             " " + std::to_string(static_cast<int>(action)));
                const std::string own = field.property ? field.property : "";
                std::vector<double> stored;
                std::vector<std::vector<double>> expected;
                for (size_t i = 0; i < kit->Size(); ++i) {
                    const double number = field.read(kit->Drawing(), typed.c_str());
                    if (field.property)
                        stored.push_back((*kit)[i].Number(own));
                    else
                        expected.push_back(IsTakenBack(action) ? Corners(i) : CornersWith(i, field, number));
                }
                const Bits before = State(own);
                Run(field.page, [&](SheetDriver& user, CGraphicPropertyPage& page) {
                    first = user.Text(field.control);
                    if (action != Action::ApplyAnother) user.Type(field.control, typed);
                    switch (action) {
                    case Action::Undo:
                        ::SendMessageA(::GetFocus(), WM_UNDO, 0, 0);
                        user.Pump();
                        if (user.Text(field.control) == first) break;
                        [[fallthrough]];
                    case Action::Retype:
                        user.Type(field.control, "");
                        user.Type(field.control, first);
                        break;
                    case Action::ApplyTwice:
                        Apply(page);
                        [[fallthrough]];
                    case Action::Apply:
                        Apply(page);
                        break;
                    case Action::ApplyAnother:
                        another = ChangeAnother(user, field.page);
                        Apply(page);
                        Apply(page);
                        break;
                    case Action::LeaveAndReturn:
                        LeaveAndReturn(user);
                        break;
                    case Action::Nothing:
                    case Action::Cancel:
                        break;
                    }
                    action == Action::Cancel ? user.Cancel() : user.Ok();
                });
                const bool unchanged = IsTakenBack(action) || typed == first;
                for (size_t i = 0; i < kit->Size(); ++i) {
                    if (!field.property) {
                        EXPECT_EQ(expected[i], Corners(i));
                        continue;
                    }
                    const double number = field.read(kit->Drawing(), typed.c_str());
                    EXPECT_EQ(BitsOf(unchanged ? stored[i] : number), BitsOf((*kit)[i].Number(own)))
                        << stored[i] << " " << number << " " << (*kit)[i].Number(own);
                }
                if (field.property && another.empty()) EXPECT_EQ(before, State(own));
            }
}

// Chosen and chosen back, by keys in lists and clicks on buttons.
TEST_F(Edits, ChooseForAllOrLeaveEachAsItWas) {
    for (const ChoiceField& field : kChoices)
        for (const Action action : kActions) {
            MakeSelection(field.page);
            SCOPED_TRACE(std::to_string(field.page) + " " + std::to_string(field.control) + " " +
                         std::to_string(static_cast<int>(action)));
            const Bits before = State(field.property), all = State("");
            bool back = action == Action::Cancel || action == Action::ApplyAnother;
            std::string another;
            Run(field.page, [&](SheetDriver& user, CGraphicPropertyPage& page) {
                const HWND control = user.Control(field.control);
                const bool button = ::SendMessageA(control, WM_GETDLGCODE, 0, 0) & DLGC_BUTTON;
                const int first = button ? user.Check(field.control) : user.Selection(field.control);
                const auto choose = [&] {
                    if (button)
                        user.Click(field.control);
                    else if (user.Selection(field.control) == 1)
                        user.Choose(field.control, 0);
                    else
                        user.Choose(field.control, 1);
                };
                if (action != Action::ApplyAnother) choose();
                switch (action) {
                case Action::Undo: // the list is opened, walked through, and left by Escape
                case Action::Retype:
                    if (button) {
                        for (int i = 0; i < 3 && user.Check(field.control) != first; ++i)
                            choose();
                        back = user.Check(field.control) == first;
                    } else if (action == Action::Undo && first >= 0) {
                        user.Choose(field.control, first);
                        back = true;
                    }
                    break;
                case Action::ApplyTwice:
                    Apply(page);
                    [[fallthrough]];
                case Action::Apply:
                    Apply(page);
                    break;
                case Action::ApplyAnother:
                    another = ChangeAnother(user, field.page);
                    Apply(page);
                    Apply(page);
                    break;
                case Action::LeaveAndReturn:
                    LeaveAndReturn(user);
                    break;
                case Action::Nothing:
                case Action::Cancel:
                    break;
                }
                action == Action::Cancel ? user.Cancel() : user.Ok();
            });
            if (another.empty()) EXPECT_EQ(before, State(field.property));
            if (back && another.empty()) EXPECT_EQ(all, State(""));
            if (back && another != field.property)
                for (size_t i = 0; i < kit->Size(); ++i)
                    EXPECT_EQ(0, std::count_if(
                                     (*kit)[i].writes.begin(), (*kit)[i].writes.end(),
                                     [&](const KitWrite& write) { return write.name == field.property; }));
        }
}

} // namespace
