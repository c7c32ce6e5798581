// CLineStyleControlL: a list box of line styles.

#include "orlo/controls/line_style_control_l.h"

#include "orlo/controls/filling.h"
#include "orlo/controls/item_drawing.h"
#include "orlo/controls/line_style_item.h"
#include "orlo/controls/table_control.h"
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
    m_pGraphic.reset();
    m_pViewport.reset();
}

int CLineStyleControlL::OnCreate(LPCREATESTRUCT lpCreateStruct) {
    if (Default() == -1) return -1;
    m_pGraphic = MakeListLineSample(lpCreateStruct->cx);
    m_pViewport.reset(ViewportNewEx());
    return 0;
}

void CLineStyleControlL::FillControl(WPARAM, LPARAM lParam) {
    const Filling filling(m_hWnd);
    const bool hasTable = BeginFill(*this, lParam);
    AttachSample(m_pGraphic, m_pViewport, m_pTable,
                 [this] { return MakeListLineSample(WindowSize(m_hWnd).cx); });
    if (!hasTable) return;
    ForEachLineStyle(m_pTable, true, [this](const char* text) { AddString(text); });
    SetCurSel(FindItem(m_nSelected));
}

void CLineStyleControlL::MeasureItem(MEASUREITEMSTRUCT* pMIS) {
    pMIS->itemHeight = static_cast<UINT>(ScreenPixels(kRowHeight));
}

void CLineStyleControlL::DrawItem(DRAWITEMSTRUCT* pDIS) {
    DrawRequest(*pDIS, {0, 0}, [=] {
        char name[kItemTextSize];
        const unsigned int style = RequestedStyle(*this, *pDIS, name);
        return DrawLineStyleItem(*pDIS, kListLineLook,
                                 {style, name, m_pTable, m_pGraphic.get(), m_pViewport.get()});
    });
}
