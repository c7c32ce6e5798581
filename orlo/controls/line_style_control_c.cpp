// CLineStyleControlC: a combo box of line styles.

#include "orlo/controls/line_style_control_c.h"

#include "orlo/controls/fill_scope.h"
#include "orlo/controls/line_styles.h"

namespace {

constexpr unsigned int kKind = kControlLineStyleCombo;

} // namespace

IMPLEMENT_DYNCREATE(CLineStyleControlC, CComboControl)

BEGIN_MESSAGE_MAP(CLineStyleControlC, CComboControl)
ON_WM_CREATE()
END_MESSAGE_MAP()

CLineStyleControlC::CLineStyleControlC(int bAddDefaultItem)
    : StyleControl(kKind, kComboLineStyles), m_bAddDefaultItem(bAddDefaultItem) {}

CLineStyleControlC::CLineStyleControlC(HWND hWnd, int bAddDefaultItem)
    : StyleControl(kKind, hWnd, kComboLineStyles), m_bAddDefaultItem(bAddDefaultItem) {}

CLineStyleControlC::~CLineStyleControlC() = default;

void CLineStyleControlC::FillControl(WPARAM wParam, LPARAM lParam) {
    StyleControl::FillControl(wParam, lParam);
    if (!m_pTable || !m_bAddDefaultItem) return;
    AddControlItem(DefaultLineItem().c_str());
    SetCurSel(FindItem(m_nSelected));
}

void CLineStyleControlC::MeasureItem(MEASUREITEMSTRUCT* pMIS) {
    pMIS->itemHeight = static_cast<UINT>(RowTextHeight(m_hWnd));
}
