// The table of row kinds.

#include "orlo/pages/field_kinds.h"

#include <oleauto.h>

#include <cmath>
#include <utility>

#include "orlo/binding/indeterminate.h"
#include "orlo/controls/brush_style_control_c.h"
#include "orlo/controls/color_control.h"
#include "orlo/controls/control_items.h"
#include "orlo/controls/font_face_control.h"
#include "orlo/controls/font_size_control.h"
#include "orlo/controls/layer_control.h"
#include "orlo/controls/line_style_control_c.h"
#include "orlo/exchange/ddp.h"
#include "orlo/exchange/ddx.h"
#include "orlo/exchange/failure.h"
#include "orlo/exchange/indeterminate_text.h"
#include "orlo/exchange/number_text.h"
#include "orlo/exchange/window_text.h"
#include "orlo/frame/loaded_controls.h"
#include "orlo/host/drawing.h"
#include "orlo/host/units.h"
#include "orlo/pages/angle_and_scale.h"
#include "orlo/pages/current_drawing.h"
#include "orlo/resources/resource.h"
#include "orlo/win/encoded_text.h"

namespace {

constexpr int kTextSize = 0x100;

// ---- Numbers as text

std::string NumberText(double value) {
    constexpr int kDigits = 10;
    constexpr double kLargestPlain = 1e10, kSmallestPlain = 1e-5;
    const double magnitude = std::fabs(value);
    const int exponentForm = magnitude >= kLargestPlain || (magnitude < kSmallestPlain && value != 0.0);
    char text[kTextSize] = "";
    ::DoubleToString(0, value, kDigits, text, 0, exponentForm, 1);
    return text;
}

std::string LengthText(double value) {
    char text[kTextSize] = "";
    DrawingStruct* drawing = CurrentDrawing();
    const bool written = drawing != nullptr && ::DrawingStdNumericToText(drawing, value, text, sizeof text, 0);
    return written ? text : NumberText(value);
}

std::string AngleText(double value) {
    char text[kTextSize] = "";
    DrawingStruct* drawing = CurrentDrawing();
    const bool written = drawing != nullptr && ::DrawingStdAngleToText(drawing, value, text, sizeof text, 0);
    return written ? text : NumberText(value);
}

std::string DateText(double days) {
    BSTR text = nullptr;
    if (FAILED(::VarBstrFromDate(days, LOCALE_USER_DEFAULT, VAR_DATEVALUEONLY, &text))) return "";
    const std::unique_ptr<OLECHAR, void (*)(BSTR)> owner(text, [](BSTR string) { ::SysFreeString(string); });
    return orlo::Narrow(text, CP_ACP);
}

bool ReadDate(const char* text, double& days) {
    const std::wstring wide = orlo::Widen(text, CP_ACP);
    return SUCCEEDED(
        ::VarDateFromStr(const_cast<OLECHAR*>(wide.c_str()), LOCALE_USER_DEFAULT, VAR_DATEVALUEONLY, &days));
}

// ---- Exchange between control and value. The convention is that of ddx.h; a field that shows multiple values saves
// the marker.

int TransferText(int bReport, CDataExchange* pDX, Field& field, CString& value) {
    CString shown = IsIndeterminate(value) ? CString(kIndeterminateInfo) : value;
    DDX_Text(bReport, pDX, field.id, shown);
    if (pDX->m_bSaveAndValidate) value = shown == kIndeterminateInfo ? Indeterminate<CString>::Value() : shown;
    return 1;
}

// Handles the asterisks for multiple values in number fields. Returns whether they are shown or were read.
template <class Number>
bool TransferStars(CDataExchange* pDX, int id, Number& value) {
    const HWND control = pDX->PrepareEditCtrl(id);
    if (pDX->m_bSaveAndValidate) {
        if (!IsIndeterminateText(WindowText(control))) return false;
        value = Indeterminate<Number>::Value();
        return true;
    }
    if (!IsIndeterminate(value)) return false;
    SetIndeterminateText(control);
    return true;
}

int TransferInteger(int bReport, CDataExchange* pDX, Field& field, int& value) {
    return TransferStars(pDX, field.id, value) || DDX_Text(bReport, pDX, field.id, value);
}

using WriteNumber = std::string (*)(double value);
using ReadText = bool (*)(const char* text, double& value);

template <WriteNumber Write, ReadText Read, UINT Prompt>
int TransferNumber(int bReport, CDataExchange* pDX, Field& field, double& value) {
    if (TransferStars(pDX, field.id, value)) return 1;
    CString text;
    if (pDX->m_bSaveAndValidate) {
        DDX_Text(bReport, pDX, field.id, text);
        return Read(text, value) ? 1 : FailWithPrompt(bReport, pDX, Prompt);
    }
    text = Write(value).c_str();
    return DDX_Text(bReport, pDX, field.id, text);
}

int TransferLength(int bReport, CDataExchange* pDX, Field& field, double& value) {
    if (TransferStars(pDX, field.id, value)) return 1;
    if (DDX_TextLinear(0, pDX, static_cast<unsigned int>(field.id), value, CurrentDrawing(), 0.0, 0, 0)) return 1;
    return pDX->m_bSaveAndValidate ? FailWithPrompt(bReport, pDX, IDS_ENTER_LENGTH) : 0;
}

int TransferAngle(int bReport, CDataExchange* pDX, Field& field, double& value) {
    DrawingStruct* drawing = CurrentDrawing();
    if (drawing != nullptr && DDX_TextAngle(pDX, field.id, value, drawing)) return 1;
    return pDX->m_bSaveAndValidate ? FailWithPrompt(bReport, pDX, IDS_ENTER_ANGLE) : 0;
}

int TransferScale(int bReport, CDataExchange* pDX, Field& field, double& value) {
    return DDX_TextScale(bReport, pDX, field.id, value);
}

int TransferFontHeight(int bReport, CDataExchange* pDX, Field& field, double& value) {
    const HWND combo = pDX->PrepareCtrl(field.id);
    if (!pDX->m_bSaveAndValidate && IsIndeterminate(value)) {
        ShowBlank(combo);
        return 1;
    }
    if (!DDX_CBFontSize(0, pDX, static_cast<unsigned int>(field.id), value)) return 0;
    if (!pDX->m_bSaveAndValidate || !IsIndeterminate(value)) return 1;
    return FailWithPrompt(bReport, pDX, IDS_ENTER_FONT_SIZE);
}

// Only a check box for multiple values has the third state: if the user clicks it into that state again, each graphic
// keeps its value.
int TransferCheck(int bReport, CDataExchange* pDX, Field& field, int& value) {
    if (!pDX->m_bSaveAndValidate) {
        const LPARAM type = value == kIndeterminateCheck ? BS_AUTO3STATE : BS_AUTOCHECKBOX;
        const HWND box = pDX->PrepareCtrl(field.id);
        const LONG_PTR style = ::GetWindowLongPtrA(box, GWL_STYLE) & ~static_cast<LONG_PTR>(BS_TYPEMASK);
        ::SendMessageA(box, BM_SETSTYLE, static_cast<WPARAM>((style | type) & 0xFFFF), FALSE);
    }
    return DDX_Check(bReport, pDX, field.id, value);
}

template <int (*Ddx)(int, CDataExchange*, int, int&)>
int TransferChoice(int bReport, CDataExchange* pDX, Field& field, int& value) {
    int index = value < 0 || value >= static_cast<int>(field.row->choices.size()) ? -1 : value;
    Ddx(bReport, pDX, field.id, index);
    if (pDX->m_bSaveAndValidate) value = index < 0 ? Indeterminate<int>::Value() : index;
    return 1;
}

int TransferRadio(int bReport, CDataExchange* pDX, Field& field, int& value) {
    const int result = TransferChoice<DDX_Radio>(bReport, pDX, field, value);
    field.radios.Exchange(pDX, field.id);
    return result;
}

// Makes a control that has no item for the value draw the value, or nothing for the indeterminate marker: such a
// control draws m_nSelected.
void SetValueWithoutItem(HWND control, unsigned int value) {
    if (CComboControl* const combo = ComboControlOf(control)) combo->m_nSelected = value;
}

int TransferColor(int bReport, CDataExchange* pDX, Field& field, unsigned long& value) {
    if (!pDX->m_bSaveAndValidate) SetValueWithoutItem(pDX->PrepareCtrl(field.id), static_cast<unsigned int>(value));
    return DDX_CBTableColor(bReport, pDX, field.id, value);
}

int TransferEntry(int bReport, CDataExchange* pDX, Field& field, unsigned int& value) {
    if (!pDX->m_bSaveAndValidate) {
        const HWND control = pDX->PrepareCtrl(field.id);
        SetValueWithoutItem(control, value);
        ShowBlank(control); // an entry that is not in the list selects nothing
    }
    return DDX_CBTableIndex(bReport, pDX, field.id, value);
}

int TransferFace(int bReport, CDataExchange* pDX, Field& field, CString& value) {
    if (!pDX->m_bSaveAndValidate && IsIndeterminate(value)) {
        ShowBlank(pDX->PrepareCtrl(field.id));
        return 1;
    }
    // A face that the system does not have is listed too, because a blank field would mean multiple values.
    if (!pDX->m_bSaveAndValidate && !value.IsEmpty())
        ControlItems::OfCombo(pDX->PrepareCtrl(field.id)).FindOrAdd(value);
    DDX_CBString(bReport, pDX, field.id, value);
    if (value.IsEmpty()) value = Indeterminate<CString>::Value();
    return 1;
}

// ---- Exchange between value and graphics

CString& Member(Field& field, CString*) {
    return field.text;
}
double& Member(Field& field, double*) {
    return field.real;
}
int& Member(Field& field, int*) {
    return field.integer;
}
unsigned int& Member(Field& field, unsigned int*) {
    return field.entry;
}
unsigned long& Member(Field& field, unsigned long*) {
    return field.color;
}

FieldValue ValueOf(const CString& text) {
    return {0.0, std::string(text)};
}
template <class Number>
FieldValue ValueOf(Number number) {
    return {static_cast<double>(number), ""};
}

std::pair<double, double> LimitsOf(const Field& field) {
    const FieldRow& row = *field.row;
    return row.min != row.max ? std::pair(row.min, row.max) : std::pair(field.kind->least, field.kind->most);
}

UINT RangePrompt(FieldKind kind) {
    if (kind == FieldKind::Date) return IDS_DATE_RANGE;
    return kind == FieldKind::Integer ? AFX_IDP_PARSE_INT_RANGE : AFX_IDP_PARSE_REAL_RANGE;
}

int CheckLimits(int bReport, CDataExchange* pDX, const Field& field, const CString& text) {
    return field.row->max <= 0.0 || DDV_MaxChars(bReport, pDX, text, static_cast<int>(field.row->max));
}

template <class Number>
int CheckLimits(int bReport, CDataExchange* pDX, const Field& field, Number number) {
    const auto [least, most] = LimitsOf(field);
    const auto value = static_cast<double>(number);
    if (field.kind->format == nullptr || least == most || (value >= least && value <= most)) return 1;
    return FailTextRange(bReport, pDX, field.kind->format(least).c_str(), field.kind->format(most).c_str(),
                         RangePrompt(field.row->kind));
}

int CheckRow(int bReport, CDataExchange* pDX, const Field& field, const FieldValue& value) {
    const std::string message = field.row->check ? field.row->check(value) : "";
    if (message.empty()) return 1;
    if (bReport) AfxMessageBox(message.c_str(), MB_ICONEXCLAMATION);
    return FailExchange(bReport, pDX);
}

void EnableField(HWND page, const Field& field, bool enable) {
    const int controls = IsRadioChoice(*field.row) ? static_cast<int>(field.row->choices.size()) : 1;
    for (int i = 0; i < controls; ++i)
        ::EnableWindow(::GetDlgItem(page, field.id + i), enable);
}

// Clears a field whose property no graphic has.
void ClearField(HWND page, const Field& field) {
    const HWND control = ::GetDlgItem(page, field.id);
    if (::SendMessageA(control, WM_GETDLGCODE, 0, 0) & DLGC_BUTTON)
        for (int i = 0; i < static_cast<int>(kMaxRadioButtons); ++i)
            ::SendDlgItemMessageA(page, field.id + i, BM_SETCHECK, BST_UNCHECKED, 0);
    else
        ShowBlank(control);
}

// Exchanges a value of that type with the property. Check boxes have their own functions and marker.
template <class T>
struct AsText {
    static T Marker() { return Indeterminate<T>::Value(); }
    static bool Get(CGraphicPropertyPage& page, const char* name, T& value) {
        return page.GetPropText(name, &value, 0) != 0;
    }
    static void Preview(CGraphicPropertyPage& page, const char* name, T& value) { page.SetPropText(name, value, 1); }
    static void Bind(CDataExchange* pDX, int id, T& value, const char* name) { DDP_Text(pDX, id, value, name); }
};

struct AsCheck {
    static int Marker() { return kIndeterminateCheck; }
    static bool Get(CGraphicPropertyPage& page, const char* name, int& value) {
        return page.GetPropCheck(name, &value, 0) != 0;
    }
    static void Preview(CGraphicPropertyPage& page, const char* name, int& value) { page.SetPropCheck(name, value, 1); }
    static void Bind(CDataExchange* pDX, int id, int& value, const char* name) { DDP_Check(pDX, id, value, name); }
};

template <class T, int (*Transfer)(int, CDataExchange*, Field&, T&), class Binding = AsText<T>>
struct Value {
    static void Load(CGraphicPropertyPage& page, CDataExchange* pDX, Field& field) {
        T& value = Member(field, static_cast<T*>(nullptr));
        value = Binding::Marker();
        const bool found = Binding::Get(page, field.property.c_str(), value);
        LoadedControls::Of(page).Load(pDX, static_cast<unsigned int>(field.id), field.property, value);
        // If the host cannot format the value, the field is blank.
        if (!found || !Transfer(0, pDX, field, value)) ClearField(page.m_hWnd, field);
        const bool isEdit = ::lstrcmpiA(field.kind->className, "EDIT") == 0; // read-only by its style
        EnableField(page.m_hWnd, field, found && (isEdit || !field.row->readOnly));
    }
    static void Save(CGraphicPropertyPage& page, CDataExchange* pDX, Field& field) {
        if (field.row->readOnly) return;
        T& value = Member(field, static_cast<T*>(nullptr));
        Binding::Bind(pDX, field.id, value, field.property.c_str());
        if (!page.IsEdited(static_cast<unsigned int>(field.id))) return;
        Transfer(1, pDX, field, value);
        if (value == Binding::Marker()) return;
        CheckLimits(1, pDX, field, value);
        CheckRow(1, pDX, field, ValueOf(value));
    }
    static void Exchange(CGraphicPropertyPage& page, CDataExchange* pDX, Field& field) {
        (pDX->m_bSaveAndValidate ? Save : Load)(page, pDX, field);
    }
    static void Preview(CGraphicPropertyPage& page, CDataExchange* pDX, Field& field) {
        T value = Binding::Marker();
        if (Transfer(0, pDX, field, value) && value != Binding::Marker() && CheckLimits(0, pDX, field, value) &&
            CheckRow(0, pDX, field, ValueOf(value)))
            Binding::Preview(page, field.property.c_str(), value);
    }
};

// ---- The table

template <class Control>
std::unique_ptr<CWnd> Make() {
    return std::make_unique<Control>();
}

constexpr DWORD kStop = WS_TABSTOP | WS_GROUP;
constexpr DWORD kEdit = kStop | WS_BORDER | ES_AUTOHSCROLL;
constexpr DWORD kLines = kStop | WS_BORDER | WS_VSCROLL | ES_MULTILINE | ES_AUTOVSCROLL | ES_WANTRETURN;
constexpr DWORD kCombo = kStop | WS_VSCROLL;
constexpr DWORD kDrawnCombo = kCombo | WS_BORDER | CBS_OWNERDRAWVARIABLE | CBS_HASSTRINGS;
constexpr DWORD kDrawnList = kDrawnCombo | CBS_DROPDOWNLIST;
constexpr short kLine = 13, kBox = 11, kSeveral = 44, kList = 87, kButton = 14, kNone = 0;

constexpr double kMinHeight = 1e-7, kMaxHeight = 1e38;

using Text = Value<CString, TransferText>;
using Integer = Value<int, TransferInteger>;
using Number = Value<double, TransferNumber<NumberText, ScanNumber, AFX_IDP_PARSE_REAL>>;
using Length = Value<double, TransferLength>;
using Angle = Value<double, TransferAngle>;
using Scale = Value<double, TransferScale>;
using Check = Value<int, TransferCheck, AsCheck>;
using Radio = Value<int, TransferRadio>;
using List = Value<int, TransferChoice<DDX_CBIndex>>;
using Date = Value<double, TransferNumber<DateText, ReadDate, IDS_ENTER_DATE>>;
using Color = Value<unsigned long, TransferColor>;
using Entry = Value<unsigned int, TransferEntry>;
using Face = Value<CString, TransferFace>;
using FontHeight = Value<double, TransferFontHeight>;

template <class Kind>
constexpr KindTraits OfEdit(VARTYPE vt, std::string (*format)(double) = nullptr, double least = 0, double most = 0) {
    return {vt, "EDIT", kEdit, kLine, kNone, true, nullptr, Kind::Exchange, Kind::Preview, format, least, most};
}

template <class Kind, class Control>
constexpr KindTraits OfCombo(VARTYPE vt, DWORD style = kDrawnList) {
    return {vt, "COMBOBOX", style, kLine, kNone, true, Make<Control>, Kind::Exchange, Kind::Preview, nullptr, 0, 0};
}

// In the order of FieldKind.
const KindTraits kKinds[] = {
    OfEdit<Text>(VT_BSTR),
    {VT_BSTR, "EDIT", kLines, kSeveral, kNone, true, nullptr, Text::Exchange, Text::Preview, nullptr, 0, 0},
    OfEdit<Integer>(VT_I4, NumberText),
    OfEdit<Number>(VT_R8, NumberText),
    OfEdit<Length>(VT_R8, LengthText),
    OfEdit<Angle>(VT_R8, AngleText),
    OfEdit<Scale>(VT_R8, NumberText, orlo::kMinScale, orlo::kMaxScale),
    {VT_BOOL, "BUTTON", kStop | BS_AUTOCHECKBOX | BS_MULTILINE | BS_NOTIFY, kBox, kNone, false, nullptr,
     Check::Exchange, Check::Preview, nullptr, 0, 0},
    {VT_I4, "COMBOBOX", kCombo | CBS_DROPDOWNLIST, kLine, kList, true, nullptr, List::Exchange, List::Preview, nullptr,
     0, 0},
    OfEdit<Date>(VT_R8, DateText),
    OfCombo<Color, CColorControl>(VT_UI4),
    OfCombo<Entry, CLayerControl>(VT_UI4),
    OfCombo<Entry, CLineStyleControlC>(VT_UI4),
    OfCombo<Entry, CBrushStyleControlC>(VT_UI4),
    OfCombo<Face, CFontFaceControl>(VT_BSTR, kDrawnList | CBS_SORT),
    {VT_R8, "COMBOBOX", kDrawnCombo | CBS_DROPDOWN | CBS_AUTOHSCROLL, kLine, kNone, true, Make<CFontSizeControl>,
     FontHeight::Exchange, FontHeight::Preview, LengthText, kMinHeight, kMaxHeight},
    {VT_EMPTY, "BUTTON", kStop | BS_PUSHBUTTON | BS_NOTIFY, kButton, kNone, false, nullptr, nullptr, nullptr, nullptr,
     0, 0},
    {VT_EMPTY, "STATIC", WS_GROUP | SS_NOPREFIX, kNone, kNone, false, nullptr, nullptr, nullptr, nullptr, 0, 0},
};
static_assert(sizeof kKinds / sizeof *kKinds == static_cast<size_t>(kLastFieldKind));

const KindTraits kRadioKind = {VT_I4,
                               "BUTTON",
                               kStop | BS_AUTORADIOBUTTON | BS_NOTIFY,
                               kBox,
                               kNone,
                               false,
                               nullptr,
                               Radio::Exchange,
                               Radio::Preview,
                               nullptr,
                               0,
                               0};

} // namespace

bool IsRadioChoice(const FieldRow& row) {
    return row.kind == FieldKind::Choice && row.choices.size() <= kMaxRadioButtons;
}

const KindTraits& TraitsOf(const FieldRow& row) {
    return IsRadioChoice(row) ? kRadioKind : kKinds[static_cast<size_t>(row.kind) - 1];
}
