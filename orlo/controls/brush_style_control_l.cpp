// CBrushStyleControlL: a list box of brush styles.

#include "orlo/controls/brush_style_control_l.h"

#include <algorithm>

#include "orlo/controls/brush_style_item.h"
#include "orlo/controls/style_control.h"

namespace {

constexpr unsigned int kKind = kControlBrushStyleList;
constexpr int kHeight = 136;     // of the list
constexpr LONG kRowPercent = 30; // of the client width

SampleGraphic MakeSample() {
    return MakeBrushSample(kListBrushLayout);
}

} // namespace

IMPLEMENT_DYNCREATE(CBrushStyleControlL, CListControl)

BEGIN_MESSAGE_MAP(CBrushStyleControlL, CListControl)
ON_WM_CREATE()
END_MESSAGE_MAP()

CBrushStyleControlL::CBrushStyleControlL() : CListControl(kKind) {
    m_nHeight = kHeight;
}

CBrushStyleControlL::CBrushStyleControlL(HWND hWnd) : CListControl(kKind, hWnd) {
    m_nHeight = kHeight;
}

CBrushStyleControlL::~CBrushStyleControlL() {
    StyleControl::DisposeSample(*this);
}

int CBrushStyleControlL::OnCreate(LPCREATESTRUCT) {
    return StyleControl::Create(*this, MakeSample);
}

void CBrushStyleControlL::FillControl(WPARAM, LPARAM lParam) {
    StyleControl::Fill(*this, lParam, MakeSample, [this](auto add) { ForEachBrushStyle(m_pTable, add); });
}

void CBrushStyleControlL::MeasureItem(MEASUREITEMSTRUCT* pMIS) {
    RECT client = {};
    ::GetClientRect(m_hWnd, &client);
    pMIS->itemHeight = static_cast<UINT>(std::max(client.right * kRowPercent / 100, 1L));
}

void CBrushStyleControlL::DrawItem(DRAWITEMSTRUCT* pDIS) {
    StyleControl::DrawItem(*this, *pDIS, {0, 0},
                           [pDIS](const StyleItem& item) { return DrawBrushStyleItem(*pDIS, kListBrushLayout, item); });
}

CString CBrushStyleControlL::DescribeItem(int index) {
    const CString style = StyleControl::NameWithoutItem(*this, index);
    return style.IsEmpty() ? CListControl::DescribeItem(index) : style;
}
