// Hints for the fields of a sheet.

#include "demo/viewer/field_hints.h"

#include <commctrl.h>

#include <utility>

#include "demo/viewer/document.h"
#include "demo/viewer/selection_summary.h"
#include "demo/viewer/sheet_around.h"
#include "orlo/frame/graphic_property_sheet.h"
#include "orlo/frame/orlo_property_page.h"
#include "orlo/host/units.h"
#include "orlo/host/words.h"
#include "orlo/resources/resource.h"

namespace {

struct Field {
    unsigned int pageTemplate;
    int control;
    const char* name;
    const char* property;
    uint32_t bits = ~uint32_t{0}; // bits of the property
};

constexpr Field kFields[] = {{IDD_GENERAL_PAGE, IDC_INFO, "Attribute", kPropInfo},
                             {IDD_GENERAL_PAGE, IDC_LAYER, "Layer", kPropLayer},
                             {IDD_PEN_PAGE, IDC_LINE_STYLE_LIST, "Pattern", kPropPenStyle},
                             {IDD_PEN_PAGE, IDC_PEN_ALIGNMENT, "Alignment", kPropPenAlignment},
                             {IDD_PEN_PAGE, IDC_COLOR, "Color", kPropPenColor},
                             {IDD_PEN_PAGE, IDC_PEN_SCALE, "Dash scale", kPropPenScale},
                             {IDD_PEN_PAGE, IDC_SCALE_SYSTEM, "Width scaling", kPropScaleSystem},
                             {IDD_PEN_PAGE, IDC_PEN_WIDTH, "Width", kPropPenWidth},
                             {IDD_BRUSH_PAGE, IDC_BRUSH_STYLE_LIST, "Pattern", kPropBrushStyle},
                             {IDD_BRUSH_PAGE, IDC_BRUSH_COLOR, "Color", kPropBrushColor},
                             {IDD_BRUSH_PAGE, IDC_BRUSH_SCALE, "Scale", kPropBrushScale},
                             {IDD_BRUSH_PAGE, IDC_BRUSH_ANGLE, "Angle", kPropBrushAngle},
                             {IDD_BRUSH_PAGE, IDC_HATCH_CROSS, "Crossed", kPropHatchCross},
                             {IDD_BRUSH_PAGE, IDC_DRAW_WINDING, "Draw mode", kPropBrushDrawMode},
                             {IDD_BRUSH_PAGE, IDC_DRAW_ALTERNATE, "Draw mode", kPropBrushDrawMode},
                             {IDD_TEXT_PAGE, IDC_FONT_FACE, "Font", kPropTextFont},
                             {IDD_TEXT_PAGE, IDC_FONT_SIZE, "Height", kPropTextSize},
                             {IDD_TEXT_PAGE, IDC_FONT_STYLE, "Style", kPropTextStyle, kTextItalic | kTextBold},
                             {IDD_TEXT_PAGE, IDC_TEXT_COLOR, "Color", kPropPenColor},
                             {IDD_TEXT_PAGE, IDC_STRIKETHROUGH, "Strikethrough", kPropTextStyle, kTextStrikethrough},
                             {IDD_TEXT_PAGE, IDC_HIDDEN, "Hidden", kPropTextStyle, kTextHidden},
                             {IDD_TEXT_PAGE, IDC_ALL_CAPS, "All caps", kPropTextStyle, kTextAllCaps},
                             {IDD_TEXT_PAGE, IDC_UNDERLINE, "Underline", kPropTextStyle, kTextUnderline},
                             {IDD_TEXT_PAGE, IDC_TEXT_BOX, "Text box", kPropTextStyle, kTextBox},
                             {IDD_TEXT_PAGE, IDC_JUSTIFY_LEFT, "Justification", kPropTextFormat},
                             {IDD_TEXT_PAGE, IDC_JUSTIFY_CENTER, "Justification", kPropTextFormat},
                             {IDD_TEXT_PAGE, IDC_JUSTIFY_RIGHT, "Justification", kPropTextFormat}};

// Returns the field that a window belongs to, which may be the edit field of a combo box, or null.
const Field* FieldOf(HWND window) {
    const COrloPropertySheet* sheet = SheetAround(window);
    CPropertyPage* page = sheet ? sheet->GetActivePage() : nullptr;
    if (!page || !::IsChild(page->m_hWnd, window)) return nullptr;
    while (::GetParent(window) != page->m_hWnd)
        window = ::GetParent(window);
    const int control = ::GetDlgCtrlID(window);
    for (const Field& field : kFields)
        if (field.control == control && sheet->FindPage(field.pageTemplate) == page) return &field;
    return nullptr;
}

bool IsOverDrawing(HWND window) {
    COrloPropertySheet* sheet = SheetAround(window);
    return sheet && sheet->IsKindOf(RUNTIME_CLASS(CGraphicPropertySheet)) &&
           (static_cast<CGraphicPropertySheet*>(sheet)->GetGraphicFlags() & kNoStylePart);
}

std::string HintFor(HWND window, const Document& document) {
    const Field* field = FieldOf(window);
    if (!field || !IsOverDrawing(window)) return "";
    const std::vector<ValueCount> counts =
        CountValues(document.Drawing(), document.Selected().Members(), field->property, field->bits);
    return counts.empty() ? "" : std::string(field->name) + ": " + CountsText(counts);
}

// Returns the unit in which the text of a field is a length, or 0 if it is not a length.
uint16_t UnitOf(const Field* field) {
    const PropertyMeaning meaning = field ? FindPropertyInfo(field->property)->meaning : PropertyMeaning::Text;
    return meaning == PropertyMeaning::Width ? kUnitPenWidth : meaning == PropertyMeaning::Length ? kUnitTextSize : 0;
}

// Returns the fault in a field's text, or an empty string if it is a length or one of the listed texts.
std::string FaultOf(HWND window, DrawingStruct* drawing) {
    const Field* field = FieldOf(window);
    const uint16_t unit = UnitOf(field);
    CString typed;
    if (unit) CWnd::FromHandle(window)->GetWindowText(typed);
    const std::string text(typed);
    double length = 0;
    if (text.empty() || text.front() == '*' || ::UnitsTextToNumericEx(drawing->pUnits, unit, 0, text.c_str(), &length))
        return "";
    const HWND combo = ::GetParent(window);
    const LRESULT item =
        ::SendMessageA(combo, CB_FINDSTRINGEXACT, static_cast<WPARAM>(-1), reinterpret_cast<LPARAM>(text.c_str()));
    return item >= 0 ? "" : std::string(field->name) + ": \"" + text + "\" is not a length";
}

TOOLINFOA ToolOf(HWND window) {
    TOOLINFOA tool = {};
    tool.cbSize = TTTOOLINFOA_V1_SIZE;
    tool.uFlags = TTF_IDISHWND;
    tool.uId = reinterpret_cast<UINT_PTR>(window);
    return tool;
}

} // namespace

FieldHints::~FieldHints() {
    if (m_tip) ::DestroyWindow(m_tip);
}

bool FieldHints::Create(HWND owner) {
    m_tip = ::CreateWindowExA(WS_EX_TOPMOST, TOOLTIPS_CLASSA, nullptr, WS_POPUP | TTS_NOPREFIX | TTS_ALWAYSTIP, 0, 0, 0,
                              0, owner, nullptr, nullptr, nullptr);
    return m_tip != nullptr;
}

void FieldHints::Watch(const MSG& message, const Document* document) {
    ShowFocused(document);
    if (!document) return;
    if (message.message >= WM_MOUSEFIRST && message.message <= WM_MOUSELAST) ShowTip(message, *document);
}

void FieldHints::ShowFocused(const Document* document) {
    const HWND focus = ::GetFocus();
    if (!document || !SheetAround(focus)) return;
    const std::string fault = FaultOf(focus, document->Drawing());
    if (focus == m_focused && fault == m_fault) return;
    m_focused = focus;
    m_fault = fault;
    m_show(fault.empty() ? HintFor(focus, *document) : fault);
}

void FieldHints::Renew() {
    TOOLINFOA tool = ToolOf(std::exchange(m_hovered, nullptr));
    ::SendMessageA(m_tip, TTM_DELTOOLA, 0, reinterpret_cast<LPARAM>(&tool));
}

// The tooltip is created for one window at a time, and its text updated each time the pointer enters.
void FieldHints::ShowTip(const MSG& message, const Document& document) {
    if (message.hwnd != m_hovered) {
        Renew();
        m_hovered = message.hwnd;
        std::string hint = HintFor(m_hovered, document);
        TOOLINFOA tool = ToolOf(m_hovered);
        tool.lpszText = hint.data();
        if (!hint.empty()) ::SendMessageA(m_tip, TTM_ADDTOOLA, 0, reinterpret_cast<LPARAM>(&tool));
    }
    ::SendMessageA(m_tip, TTM_RELAYEVENT, 0, reinterpret_cast<LPARAM>(&message));
}
