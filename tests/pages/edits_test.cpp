// Random edits of every field on every page: type or select, undo, apply, leave and return. Afterward each graphic
// has, bit for bit, its original value or the host's value for the text.

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

// The action on a field, and the way that the sheet or pane continues.
enum class Touch { None, Changed, Undone, Retyped };
enum class Ending { Ok, Apply, ApplyTwice, LeaveAndReturn, Cancel };
constexpr Ending kEndings[] = {Ending::Ok, Ending::Apply, Ending::ApplyTwice, Ending::LeaveAndReturn, Ending::Cancel};

using Host = DrawingStruct*;

// A field for numbers, and the number that is stored for a text.
struct NumberField {
    unsigned int page;
    int control;
    const char* property;            // null for a part of an insertion
    double (InsertParts::*group)[3]; // part of an insertion
    int axis;
    double least, most;                // limits of the typed number
    double (*read)(Host, const char*); // parses the text like the host
    double unit;                       // unit of stored numbers
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
    return value * kInchesPerMillimeter;
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

// A control to select in: a list, or a button to click.
struct ChoiceField {
    unsigned int page;
    int control;
    const char* property;
};

const ChoiceField kChoices[] = {{IDD_GENERAL_PAGE, IDC_LAYER, kPropLayer},
                                {IDD_PEN_PAGE, IDC_COLOR, kPropPenColor},
                                {IDD_PEN_PAGE, IDC_LINE_STYLE_LIST, kPropPenStyle},
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
    double Between(double least, double most) { return std::uniform_real_distribution<double>(least, most)(random); }
    // Returns a number with few or with fifteen digits.
    std::string TypedNumber(const NumberField& field) {
        char text[40];
        std::snprintf(text, sizeof text, Below(3) ? "%.15g" : "%.3g", Between(field.least, field.most));
        return text;
    }

    // Returns values for a selection: equal, nearly equal, or different.
    std::vector<double> Values(double least, double most, int count) {
        std::vector<double> values;
        const int kind = Below(3);
        const double first = Between(least, most);
        for (int i = 0; i < count; ++i)
            values.push_back(kind == 0 ? first : kind == 1 ? first * (1 + i * 1e-7) : Between(least, most));
        return values;
    }

    // Creates a drawing with up to three graphics of the kind that the page edits.
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
            if (!field.property) parts.push_back(Values(field.least * field.unit, field.most * field.unit, count));
        for (int i = 0; i < count; ++i) {
            const int variant = alike ? 0 : i;
            std::map<std::string, KitValue> values = {{kPropLayer, variant == 0 ? int{walls} : 0},
                                                      {kPropInfo, variant % 2 ? "oak" : "elm"},
                                                      {kPropPenColor, variant ? 255.0 : 0.0},
                                                      {kPropPenStyle, kLineStyleByLayer},
                                                      {kPropScaleSystem, kScalePaper},
                                                      {kPropPenAlignment, variant % 2},
                                                      {kPropBrushColor, variant ? 255.0 : 0.0},
                                                      {kPropBrushStyle, 6}, // all hatched, whatever else differs
                                                      {kPropHatchCross, variant % 2},
                                                      {kPropBrushDrawMode, variant % 2},
                                                      {kPropTextFont, variant % 2 ? "DejaVu Serif" : "No Such Font"},
                                                      {kPropTextStyle, variant * 0x1143 & 0xFFFF},
                                                      {kPropTextFormat, variant % 3}};
            for (const auto& [name, of] : numbers)
                values[name] = of[static_cast<size_t>(i)];
            KitGraphic& graphic = kit->Add(std::move(values), TypeFor(page));
            if (page != IDD_INSERT_PAGE) continue;
            InsertParts insertion{};
            size_t part = 0;
            for (const NumberField& field : kNumbers)
                if (!field.property) (insertion.*field.group)[field.axis] = parts[part++][static_cast<size_t>(i)];
            ::InsertSetData(graphic.graphic, blocks, block, nullptr);
            ::InsertSetParts(graphic.graphic, &insertion);
        }
    }
    static int TypeFor(unsigned int page) {
        return page == IDD_TEXT_PAGE ? kGraphicText : page == IDD_INSERT_PAGE ? kGraphicInsert : kGraphicPenBrush;
    }

    std::vector<double> Corners(size_t i) const {
        std::vector<double> numbers;
        if ((*kit)[i].graphic->bType == kGraphicInsert)
            for (const VertexStruct* v : orlo::host::Vertices((*kit)[i].graphic))
                numbers.insert(numbers.end(), {v->x, v->y, v->z});
        return numbers;
    }
    // Returns the vertices of insertion i with some parts changed.
    std::vector<double> CornersWith(size_t i, const std::map<const NumberField*, double>& changed) {
        GraphicStruct* const graphic = (*kit)[i].graphic;
        const std::vector<double> before = Corners(i);
        InsertParts from{};
        if (changed.empty() || !ReadInsertParts(graphic, from)) return before;
        InsertParts to = from;
        for (const auto& [field, part] : changed)
            if (!field->property) (to.*field->group)[field->axis] = part;
        ChangeInsertParts(graphic, from, to);
        const std::vector<double> after = Corners(i);
        size_t at = 0;
        for (VertexStruct* v : orlo::host::Vertices(graphic)) {
            ::VertexSet(v, before[at], before[at + 1], before[at + 2]);
            at += 3;
        }
        return after;
    }

    int Run(unsigned int id, const std::function<void(SheetDriver&, CGraphicPropertyPage&)>& script) {
        ::SetCursorPos(0, 0);          // a list that opens under the pointer would select the item there
        const MessageBoxWatcher boxes; // fails if a message box appears
        TestSheet sheet(*kit);
        for (size_t i = 0; i < kit->Size(); ++i)
            ::AddGraphicPropertyPage(nullptr, (*kit)[i].graphic, &sheet.Sheet());
        const int result = sheet.Run([&](SheetDriver& user) {
            auto* page = sheet.Sheet().FindPage(id);
            ASSERT_NE(page, nullptr);
            sheet.Sheet().SetActivePage(page);
            script(user, static_cast<CGraphicPropertyPage&>(*page));
        });
        EXPECT_TRUE(boxes.Boxes().empty());
        return result;
    }

    // Writes and reloads the page like a properties pane.
    static void Apply(CGraphicPropertyPage& page) {
        ASSERT_TRUE(page.OnKillActive());
        page.OnOK();
        page.OnSetActive();
        page.UpdateData(FALSE);
        page.SetModified(FALSE);
    }
    // Sets the whole text at once, since a page that validates each keystroke would report "*" alone.
    static void Paste(SheetDriver& user, int control, const std::string& text) {
        user.Focus(control);
        ::SendMessageA(::GetFocus(), EM_SETSEL, 0, -1);
        ::SendMessageA(::GetFocus(), EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(text.c_str()));
        user.Pump();
    }
    static void Continue(SheetDriver& user, CGraphicPropertyPage& page, Ending ending);
    static void LeaveAndReturn(SheetDriver& user) {
        const int page = user.ActivePage();
        user.SelectPage(page ? 0 : 1);
        user.SelectPage(page);
    }

    std::mt19937 random{20261126};
    std::unique_ptr<GraphicKit> kit;
    std::unique_ptr<HostFrame> frame;
};

// Restores a control: a list is opened and closed with Return, or stepped through and closed with Escape; otherwise the
// first item is selected again; a button is clicked until it has its first state. Returns false if that is impossible.
bool RestoreControl(SheetDriver& user, int control, int first, bool walk) {
    if (::SendMessageA(user.Control(control), WM_GETDLGCODE, 0, 0) & DLGC_BUTTON) {
        for (int i = 0; i < 3 && user.Check(control) != first; ++i)
            user.Click(control);
        return user.Check(control) == first;
    }
    if (first >= 0) user.SelectItem(control, first);
    if (!user.IsCombo(control)) return first >= 0;
    if (first < 0) return false;
    user.Key(VK_F4);
    for (int i = 0; walk && i < 2; ++i)
        user.Key(VK_DOWN);
    user.Key(walk ? VK_ESCAPE : VK_RETURN);
    return true;
}

void Edits::Continue(SheetDriver& user, CGraphicPropertyPage& page, Ending ending) {
    switch (ending) {
    case Ending::ApplyTwice:
        Apply(page);
        [[fallthrough]];
    case Ending::Apply:
        Apply(page);
        break;
    case Ending::LeaveAndReturn:
        LeaveAndReturn(user);
        break;
    case Ending::Cancel:
        user.Cancel();
        return;
    case Ending::Ok:
        break;
    }
    user.Ok();
}

// Types in some fields and undoes or retypes part of them; changes and restores some lists and buttons.
TEST_F(Edits, StoreTheHostsValueOrKeepEveryBit) {
    constexpr unsigned int kPages[] = {IDD_GENERAL_PAGE, IDD_PEN_PAGE, IDD_BRUSH_PAGE, IDD_TEXT_PAGE, IDD_INSERT_PAGE};
    for (int n = 0; n < static_cast<int>(std::size(kPages) * std::size(kEndings)); ++n) {
        const unsigned int id = kPages[static_cast<size_t>(n) % std::size(kPages)];
        const Ending ending = kEndings[static_cast<size_t>(n) / std::size(kPages) % std::size(kEndings)];
        SCOPED_TRACE(std::to_string(id) + " " + std::to_string(static_cast<int>(ending)));
        MakeSelection(id);
        std::map<const NumberField*, double> changed;
        std::set<std::string> chosen;
        std::string log, info;
        std::vector<std::map<std::string, KitValue>> before;
        std::vector<std::vector<double>> corners;
        for (size_t i = 0; i < kit->Size(); ++i)
            before.push_back((*kit)[i].properties);
        Run(id, [&](SheetDriver& user, CGraphicPropertyPage& page) {
            for (const NumberField& field : kNumbers) {
                const auto touch = static_cast<Touch>(Below(4));
                if (field.page != id || touch == Touch::None) continue;
                const std::string first = user.Text(field.control), typed = TypedNumber(field);
                log += std::to_string(field.control) + " " + typed + "; ";
                user.Type(field.control, typed);
                if (touch == Touch::Changed) {
                    changed[&field] = field.read(kit->Drawing(), typed.c_str());
                    continue;
                }
                if (touch == Touch::Undone) ::SendMessageA(::GetFocus(), WM_UNDO, 0, 0);
                if (user.Text(field.control) != first) Paste(user, field.control, first);
            }
            for (const ChoiceField& field : kChoices) {
                const auto touch = static_cast<Touch>(Below(4));
                if (field.page != id || touch == Touch::None) continue;
                const bool button = ::SendMessageA(user.Control(field.control), WM_GETDLGCODE, 0, 0) & DLGC_BUTTON;
                const int first = button ? user.Check(field.control) : user.Selection(field.control);
                log += std::to_string(field.control) + "; ";
                button ? user.Click(field.control) : user.SelectItem(field.control, first == 1 ? 0 : 1);
                if (touch == Touch::Changed || !RestoreControl(user, field.control, first, touch == Touch::Undone))
                    chosen.insert(field.property);
            }
            if (id == IDD_GENERAL_PAGE && Below(2)) user.Type(IDC_INFO, info = "ash");
            if (ending == Ending::Cancel) {
                changed.clear();
                chosen.clear();
                info.clear();
            }
            for (size_t i = 0; i < kit->Size(); ++i)
                corners.push_back(CornersWith(i, changed));
            Continue(user, page, ending);
        });
        SCOPED_TRACE(log);
        for (size_t i = 0; i < kit->Size(); ++i) {
            EXPECT_EQ(corners[i], Corners(i));
            for (const auto& [field, number] : changed)
                if (field->property) before[i][field->property] = number;
            if (!info.empty()) before[i][kPropInfo] = info.c_str();
            for (const auto& [name, value] : before[i]) {
                if (chosen.count(name)) continue;
                EXPECT_EQ(BitsOf(value.number), BitsOf((*kit)[i].Number(name)))
                    << name << " " << value.number << " " << (*kit)[i].Number(name);
                EXPECT_EQ(value.text, (*kit)[i].Text(name)) << name;
            }
        }
    }
}

// Opens and closes lists without a selection, which are those for differing values.
TEST_F(Edits, OpeningAndClosingAListSelectsNothing) {
    for (const unsigned int id : {IDD_GENERAL_PAGE, IDD_PEN_PAGE, IDD_BRUSH_PAGE, IDD_TEXT_PAGE})
        for (const bool walk : {false, true}) {
            MakeSelection(id);
            for (const ChoiceField& field : kChoices)
                for (size_t i = 0; i < kit->Size(); ++i) {
                    KitValue& value = (*kit)[i].properties[field.property];
                    if (field.property != std::string(kPropBrushStyle)) value.number = i ? 200 : 100;
                    value.text = i ? "DejaVu Serif" : "No Such Font";
                }
            Run(id, [&](SheetDriver& user, CGraphicPropertyPage&) {
                for (const ChoiceField& field : kChoices) {
                    if (field.page != id || !user.IsCombo(field.control)) continue;
                    user.Focus(field.control);
                    user.Key(VK_F4);
                    for (int i = 0; walk && i < 2; ++i)
                        user.Key(VK_DOWN);
                    user.Key(walk ? VK_ESCAPE : VK_RETURN);
                }
                user.Ok();
            });
            for (size_t i = 0; i < kit->Size(); ++i)
                for (const KitWrite& write : (*kit)[i].writes)
                    ADD_FAILURE() << id << (walk ? " walk " : " ") << write.name;
        }
}

} // namespace
