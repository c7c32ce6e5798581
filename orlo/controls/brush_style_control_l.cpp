// CBrushStyleControlL: a list box of brush styles.

#include "orlo/controls/brush_style_control_l.h"

#include <algorithm>

#include "orlo/controls/brush_style_item.h"
#include "orlo/controls/filling.h"
#include "orlo/controls/item_drawing.h"
#include "orlo/controls/table_control.h"

namespace {

constexpr unsigned int kKind = kControlBrushStyleList;
constexpr int kHeight = 136;     // of the list
constexpr LONG kRowPercent = 30; // of the client width

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
    m_pGraphic.reset();
    m_pViewport.reset();
}

int CBrushStyleControlL::OnCreate(LPCREATESTRUCT) {
    if (Default() == -1) return -1;
    m_pGraphic = MakeBrushSample(kListBrushLook);
    m_pViewport.reset(ViewportNewEx());
    return 0;
}

void CBrushStyleControlL::FillControl(WPARAM, LPARAM lParam) {
    const Filling filling(m_hWnd);
    const bool hasTable = BeginFill(*this, lParam);
    AttachSample(m_pGraphic, m_pViewport, m_pTable, [] { return MakeBrushSample(kListBrushLook); });
    if (!hasTable) return;
    ForEachBrushStyle(m_pTable, [this](const char* text) { AddString(text); });
    SetCurSel(FindItem(m_nSelected));
}

void CBrushStyleControlL::MeasureItem(MEASUREITEMSTRUCT* pMIS) {
    RECT client = {};
    ::GetClientRect(m_hWnd, &client);
    pMIS->itemHeight = static_cast<UINT>(std::max(client.right * kRowPercent / 100, 1L));
}

void CBrushStyleControlL::DrawItem(DRAWITEMSTRUCT* pDIS) {
    DrawRequest(*pDIS, {0, 0}, [=] {
        char name[kItemTextSize];
        const unsigned int style = RequestedStyle(*this, *pDIS, name);
        return DrawBrushStyleItem(*pDIS, kListBrushLook,
                                  {style, name, m_pTable, m_pGraphic.get(), m_pViewport.get()});
    });
}
