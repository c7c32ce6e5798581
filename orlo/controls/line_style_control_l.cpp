// CLineStyleControlL: a list box of line styles.

#include "orlo/controls/line_style_control_l.h"

#include "orlo/controls/line_styles.h"
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

CLineStyleControlL::CLineStyleControlL() : StyleControl(kKind, kListLineStyles) {
    m_nHeight = kHeight;
}

CLineStyleControlL::CLineStyleControlL(HWND hWnd) : StyleControl(kKind, hWnd, kListLineStyles) {
    m_nHeight = kHeight;
}

CLineStyleControlL::~CLineStyleControlL() = default;

void CLineStyleControlL::MeasureItem(MEASUREITEMSTRUCT* pMIS) {
    pMIS->itemHeight = static_cast<UINT>(ScreenPixels(kRowHeight));
}
