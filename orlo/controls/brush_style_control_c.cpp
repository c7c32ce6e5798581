// CBrushStyleControlC: a combo box of brush styles.

#include "orlo/controls/brush_style_control_c.h"

#include "orlo/controls/brush_styles.h"
#include "orlo/controls/fill_scope.h"

namespace {

constexpr unsigned int kKind = kControlBrushStyleCombo;

} // namespace

IMPLEMENT_DYNCREATE(CBrushStyleControlC, CComboControl)

BEGIN_MESSAGE_MAP(CBrushStyleControlC, CComboControl)
ON_WM_CREATE()
END_MESSAGE_MAP()

CBrushStyleControlC::CBrushStyleControlC() : StyleControl(kKind, kComboBrushStyles) {}

CBrushStyleControlC::CBrushStyleControlC(HWND hWnd) : StyleControl(kKind, hWnd, kComboBrushStyles) {}

CBrushStyleControlC::~CBrushStyleControlC() = default;

void CBrushStyleControlC::MeasureItem(MEASUREITEMSTRUCT* pMIS) {
    pMIS->itemHeight = static_cast<UINT>(RowTextHeight(m_hWnd));
}
