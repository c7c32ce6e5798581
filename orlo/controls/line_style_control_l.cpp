// CLineStyleControlL: a list box of line styles.

#include "orlo/controls/line_style_control_l.h"

#include "orlo/controls/line_style_item.h"
#include "orlo/controls/style_control.h"
#include "orlo/win/screen_scale.h"

namespace {

constexpr unsigned int kKind = kControlLineStyleList;
constexpr int kHeight = 136;   // of the list
constexpr int kRowHeight = 22; // pixels at 96 dpi

} // namespace

IMPLEMENT_DYNCREATE(CLineStyleControlL, CListControl)

BEGIN_MESSAGE_MAP(CLineStyleControlL, CListControl)
ON_WM_CREATE()
END_MESSAGE_MAP()

CLineStyleControlL::CLineStyleControlL() : CListControl(kKind) {
    m_nHeight = kHeight;
}

CLineStyleControlL::CLineStyleControlL(HWND hWnd) : CListControl(kKind, hWnd) {
    m_nHeight = kHeight;
}

CLineStyleControlL::~CLineStyleControlL() {
    StyleControl::DisposeSample(*this);
}

int CLineStyleControlL::OnCreate(LPCREATESTRUCT lpCreateStruct) {
    return StyleControl::Create(*this, [=] { return MakeListLineSample(lpCreateStruct->cx); });
}

void CLineStyleControlL::FillControl(WPARAM, LPARAM lParam) {
    StyleControl::Fill(
        *this, lParam, [this] { return MakeListLineSample(WindowSize(m_hWnd).cx); },
        [this](auto add) { ForEachLineStyle(m_pTable, true, add); });
}

void CLineStyleControlL::MeasureItem(MEASUREITEMSTRUCT* pMIS) {
    pMIS->itemHeight = static_cast<UINT>(ScreenPixels(kRowHeight));
}

void CLineStyleControlL::DrawItem(DRAWITEMSTRUCT* pDIS) {
    StyleControl::DrawItem(*this, *pDIS, {0, 0},
                           [pDIS](const StyleItem& item) { return DrawLineStyleItem(*pDIS, kListLineLayout, item); });
}

CString CLineStyleControlL::DescribeItem(int index) {
    const CString style = StyleControl::NameWithoutItem(*this, index);
    return style.IsEmpty() ? CListControl::DescribeItem(index) : style;
}
