// CFontFaceControl: a combo box of the system's TrueType faces.

#include "orlo/controls/font_face_control.h"

#include "orlo/controls/control_items.h"
#include "orlo/controls/fill_scope.h"
#include "orlo/controls/font_list.h"
#include "orlo/controls/item_drawing.h"
#include "orlo/controls/table_control.h"

namespace {

constexpr unsigned int kKind = kControlFontFaces;

} // namespace

IMPLEMENT_DYNCREATE(CFontFaceControl, CComboControl)

CFontFaceControl::CFontFaceControl() : CComboControl(kKind) {}

CFontFaceControl::CFontFaceControl(HWND hWnd) : CComboControl(kKind, hWnd) {}

CFontFaceControl::~CFontFaceControl() = default;

void CFontFaceControl::FillControl(WPARAM, LPARAM lParam) {
    const FillScope scope(m_hWnd);
    BeginFill(*this, lParam); // the faces come from the system, so they are listed even without a table
    FillFontDropDown(m_hWnd, reinterpret_cast<LPARAM>(this));

    const auto* const record = reinterpret_cast<const ControlFillRecord*>(lParam);
    const char* const face = record ? reinterpret_cast<const char*>(record->dwValue) : nullptr;
    int index = -1;
    if (face && IsTableIdentifier(m_nSelected))
        index = ControlItems::OfCombo(m_hWnd).FindOrAdd(face, [this](const char* text) { AddControlItem(text); });
    SetCurSel(index);
}

void CFontFaceControl::MeasureItem(MEASUREITEMSTRUCT* pMIS) {
    pMIS->itemHeight = static_cast<UINT>(RowTextHeight(m_hWnd));
}

int CFontFaceControl::MeasureNameWidth(HDC dc, const char* name) {
    return PlainRowWidth(dc, name);
}

void CFontFaceControl::DrawItem(DRAWITEMSTRUCT* pDIS) {
    const PlainItem item = RequestedItem(*this, *pDIS);
    if (IsNoItem(*pDIS) && !item.IsNothing()) return;
    // A closed field is redrawn even if its name is empty, to erase what it showed before.
    if (*item.text || IsClosedField(*pDIS)) DrawPlainRow(*pDIS, item.text, ColorsOf(*pDIS));
    DrawItemFocus(*pDIS);
}
