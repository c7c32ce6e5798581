// CBrushStyleControlC: a combo box of brush styles.

#include "orlo/controls/brush_style_control_c.h"

#include "orlo/controls/brush_style_item.h"
#include "orlo/controls/fill_scope.h"
#include "orlo/controls/style_control.h"

namespace {

constexpr unsigned int kKind = kControlBrushStyleCombo;

SampleGraphic MakeSample() {
    return MakeBrushSample(kComboBrushLayout);
}

} // namespace

IMPLEMENT_DYNCREATE(CBrushStyleControlC, CComboControl)

BEGIN_MESSAGE_MAP(CBrushStyleControlC, CComboControl)
ON_WM_CREATE()
END_MESSAGE_MAP()

CBrushStyleControlC::CBrushStyleControlC() : CComboControl(kKind) {}

CBrushStyleControlC::CBrushStyleControlC(HWND hWnd) : CComboControl(kKind, hWnd) {}

CBrushStyleControlC::~CBrushStyleControlC() {
    StyleControl::DisposeSample(*this);
}

int CBrushStyleControlC::OnCreate(LPCREATESTRUCT) {
    return StyleControl::Create(*this, MakeSample);
}

void CBrushStyleControlC::FillControl(WPARAM, LPARAM lParam) {
    StyleControl::Fill(*this, lParam, MakeSample, [this](auto add) { ForEachBrushStyle(m_pTable, add); });
}

void CBrushStyleControlC::MeasureItem(MEASUREITEMSTRUCT* pMIS) {
    pMIS->itemHeight = static_cast<UINT>(RowTextHeight(m_hWnd));
}

void CBrushStyleControlC::DrawItem(DRAWITEMSTRUCT* pDIS) {
    StyleControl::DrawItem(*this, *pDIS, {1, 2}, [pDIS](const StyleItem& item) {
        return DrawBrushStyleItem(*pDIS, kComboBrushLayout, item);
    });
}

CString CBrushStyleControlC::DescribeItem(int index) {
    const CString style = StyleControl::NameWithoutItem(*this, index);
    return style.IsEmpty() ? CComboControl::DescribeItem(index) : style;
}
