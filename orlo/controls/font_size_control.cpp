// CFontSizeControl: a combo box to type or select a font height, and its edit field.

#include "orlo/controls/font_size_control.h"

#include <cstring>

#include "orlo/controls/control_items.h"
#include "orlo/controls/fill_scope.h"
#include "orlo/controls/font_list.h"
#include "orlo/controls/item_drawing.h"
#include "orlo/controls/table_control.h"
#include "orlo/host/drawing.h"
#include "orlo/host/table.h"

namespace {

constexpr unsigned int kKind = kControlFontSizes;
constexpr int kEditField = 1001; // the system's identifier of a combo box's edit field

float FloatOf(UINT_PTR bits) {
    const auto low = static_cast<uint32_t>(bits);
    float value;
    std::memcpy(&value, &low, sizeof value);
    return value;
}

void WatchEditField(CFontSizeControl& control) {
    if (!control.m_editSize.m_hWnd && ::GetDlgItem(control.m_hWnd, kEditField))
        control.m_editSize.SubclassDlgItem(kEditField, &control);
}

// Reads drawing, font and coordinate space from the table. Returns false if there are no sizes to list.
bool ReadDrawing(CFontSizeControl& control) {
    DrawingStruct* const drawing = ::TableGetOwner(control.m_pTable);
    control.m_pDrawing = drawing;
    if (!drawing) return false;
    char font[0x100] = "";
    ::TableGetStringVar(drawing->pUnits, kUnitFontName, font, sizeof font);
    control.m_strFontName = font;
    if (control.m_strFontName.IsEmpty() || !drawing->pApplication) return false;
    control.m_nCoordSpace = ::DrawingGetCoordSpace(drawing);
    return true;
}

// A closed combo box shows the height with its text selected, ready to be overwritten. A height that has no text is not
// shown.
void Show(CFontSizeControl& control, double size) {
    CString text;
    control.FontSizeText(size, text);
    if (text.IsEmpty()) {
        control.SetCurSel(-1);
        return;
    }
    const int index = ControlItems::OfCombo(control.m_hWnd).FindOrAdd(text);
    if (control.GetDroppedState()) {
        control.SetCurSel(index);
    } else {
        ::SetWindowTextA(control.m_hWnd, text);
        control.SendMessage(CB_SETEDITSEL, 0, -1);
    }
}

} // namespace

WNDPROC CEnterEdit::lpfnSuperWndProc = nullptr;

IMPLEMENT_DYNAMIC(CEnterEdit, CWnd)

BEGIN_MESSAGE_MAP(CEnterEdit, CWnd)
ON_WM_KEYUP()
END_MESSAGE_MAP()

CEnterEdit::CEnterEdit() = default;

CEnterEdit::~CEnterEdit() = default;

WNDPROC* CEnterEdit::GetSuperWndProcAddr() {
    return &lpfnSuperWndProc;
}

void CEnterEdit::OnKeyUp(UINT nChar, UINT, UINT) {
    Default();
    if (nChar != VK_RETURN) return;
    const CComboControl* const combo = ComboControlOf(::GetParent(m_hWnd));
    const CWinThread* const thread = AfxGetThread();
    const HWND main = thread && thread->m_pMainWnd ? thread->m_pMainWnd->m_hWnd : nullptr;
    if (!combo || !main) return;
    ::SendMessageA(main, WM_COMMAND, MAKEWPARAM(combo->m_nControlID, CBN_SELENDOK),
                   reinterpret_cast<LPARAM>(combo->m_hWnd));
    ::SetFocus(main);
}

IMPLEMENT_DYNCREATE(CFontSizeControl, CComboControl)

BEGIN_MESSAGE_MAP(CFontSizeControl, CComboControl)
ON_WM_CREATE()
END_MESSAGE_MAP()

CFontSizeControl::CFontSizeControl() : CComboControl(kKind) {}

CFontSizeControl::CFontSizeControl(HWND hWnd) : CComboControl(kKind, hWnd) {}

CFontSizeControl::~CFontSizeControl() = default;

CFontSizeControl* FontSizeControlOf(HWND window) {
    CComboControl* const combo = ComboControlOf(window);
    const bool isSize = combo && combo->IsKindOf(RUNTIME_CLASS(CFontSizeControl));
    return isSize ? static_cast<CFontSizeControl*>(combo) : nullptr;
}

int CFontSizeControl::OnCreate(LPCREATESTRUCT) {
    const int result = static_cast<int>(Default());
    if (result == -1) return -1;
    WatchEditField(*this);
    return result;
}

void CFontSizeControl::FillControl(WPARAM, LPARAM lParam) {
    WatchEditField(*this); // a subclassed window was created without this object
    const FillScope scope(m_hWnd);
    m_pDrawing = nullptr; // the host may be about to close it
    if (!BeginFill(*this, lParam) || !ReadDrawing(*this)) return;
    const FontListRequest request = {this, m_strFontName};
    FillFontDropDown(m_hWnd, reinterpret_cast<LPARAM>(&request));

    const float size = FloatOf(reinterpret_cast<const ControlFillRecord*>(lParam)->dwValue);
    if (!IsTableIdentifier(m_nSelected) || size == 0.0f)
        SetCurSel(-1);
    else
        Show(*this, size);
}

void CFontSizeControl::ReConvertFontSize(const char* text, double& value) {
    TextToFontSize(m_pDrawing, static_cast<uint16_t>(m_nCoordSpace), text, &value);
}

void CFontSizeControl::FontSizeText(double value, CString& text) {
    char buffer[kFontSizeTextSize] = "";
    FontSizeToText(m_pDrawing, static_cast<uint16_t>(m_nCoordSpace), value, buffer, sizeof buffer);
    text = buffer;
}

void CFontSizeControl::RasterSizeText(const TEXTMETRICA& metrics, CString& text) {
    const double points = metrics.tmHeight - metrics.tmInternalLeading;
    FontSizeText(points / m_nLogicalInch * kMillimetersPerInch, text);
}

void CFontSizeControl::MeasureItem(MEASUREITEMSTRUCT* pMIS) {
    pMIS->itemHeight = static_cast<UINT>(RowTextHeight(m_hWnd));
}

int CFontSizeControl::MeasureNameWidth(HDC dc, const char* name) {
    return PlainRowWidth(dc, name);
}

void CFontSizeControl::DrawItem(DRAWITEMSTRUCT* pDIS) {
    const PlainItem item = RequestedItem(*this, *pDIS);
    if (IsNoItem(*pDIS) && !item.IsNothing()) return;
    DrawPlainRow(*pDIS, item.text, item.IsNothing() ? SampleColorsOf(*pDIS) : ColorsOf(*pDIS));
    DrawItemFocus(*pDIS);
}
