// CLineStyleControlC: a combo box of line styles.

#include "orlo/controls/line_style_control_c.h"

#include "orlo/controls/fill_scope.h"
#include "orlo/controls/line_style_item.h"
#include "orlo/controls/style_control.h"

namespace {

constexpr unsigned int kKind = kControlLineStyleCombo;

} // namespace

IMPLEMENT_DYNCREATE(CLineStyleControlC, CComboControl)

BEGIN_MESSAGE_MAP(CLineStyleControlC, CComboControl)
ON_WM_CREATE()
END_MESSAGE_MAP()

CLineStyleControlC::CLineStyleControlC(int bAddDefaultItem)
    : CComboControl(kKind), m_bAddDefaultItem(bAddDefaultItem) {}

CLineStyleControlC::CLineStyleControlC(HWND hWnd, int bAddDefaultItem)
    : CComboControl(kKind, hWnd), m_bAddDefaultItem(bAddDefaultItem) {}

CLineStyleControlC::~CLineStyleControlC() {
    StyleControl::DisposeSample(*this);
}

int CLineStyleControlC::OnCreate(LPCREATESTRUCT lpCreateStruct) {
    return StyleControl::Create(*this, [=] { return MakeComboLineSample(lpCreateStruct->cx); });
}

void CLineStyleControlC::FillControl(WPARAM, LPARAM lParam) {
    StyleControl::Fill(
        *this, lParam, [this] { return MakeComboLineSample(WindowSize(m_hWnd).cx); },
        [this](auto add) { ForEachLineStyle(m_pTable, m_bAddDefaultItem != 0, add); });
}

void CLineStyleControlC::MeasureItem(MEASUREITEMSTRUCT* pMIS) {
    pMIS->itemHeight = static_cast<UINT>(RowTextHeight(m_hWnd));
}

void CLineStyleControlC::DrawItem(DRAWITEMSTRUCT* pDIS) {
    StyleControl::DrawItem(*this, *pDIS, {0, 0},
                           [pDIS](const StyleItem& item) { return DrawLineStyleItem(*pDIS, kComboLineLayout, item); });
}

CString CLineStyleControlC::DescribeItem(int index) {
    const CString style = StyleControl::NameWithoutItem(*this, index);
    return style.IsEmpty() ? CComboControl::DescribeItem(index) : style;
}
