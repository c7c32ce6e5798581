// CBrushStyleControlL: a list box of brush styles.

#include "orlo/controls/brush_style_control_l.h"

#include <algorithm>

#include "orlo/controls/brush_styles.h"

namespace {

constexpr unsigned int kKind = kControlBrushStyleList;
constexpr int kHeight = 136;     // of the list
constexpr LONG kRowPercent = 30; // of the client width

} // namespace

IMPLEMENT_DYNCREATE(CBrushStyleControlL, CListControl)

BEGIN_MESSAGE_MAP(CBrushStyleControlL, CListControl)
ON_WM_CREATE()
END_MESSAGE_MAP()

CBrushStyleControlL::CBrushStyleControlL() : StyleControl(kKind, kListBrushStyles) {
    m_nHeight = kHeight;
}

CBrushStyleControlL::CBrushStyleControlL(HWND hWnd) : StyleControl(kKind, hWnd, kListBrushStyles) {
    m_nHeight = kHeight;
}

CBrushStyleControlL::~CBrushStyleControlL() = default;

void CBrushStyleControlL::MeasureItem(MEASUREITEMSTRUCT* pMIS) {
    RECT client = {};
    ::GetClientRect(m_hWnd, &client);
    pMIS->itemHeight = static_cast<UINT>(std::max(client.right * kRowPercent / 100, 1L));
}
