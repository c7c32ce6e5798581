// CBrushStyleControlC: a combo box of brush styles.

#include "orlo/controls/brush_style_control_c.h"

#include "orlo/controls/brush_style_item.h"
#include "orlo/controls/filling.h"
#include "orlo/controls/item_drawing.h"
#include "orlo/controls/table_control.h"

namespace {

constexpr unsigned int kKind = kControlBrushStyleCombo;

} // namespace

IMPLEMENT_DYNCREATE(CBrushStyleControlC, CComboControl)

BEGIN_MESSAGE_MAP(CBrushStyleControlC, CComboControl)
ON_WM_CREATE()
END_MESSAGE_MAP()

CBrushStyleControlC::CBrushStyleControlC() : CComboControl(kKind) {}

CBrushStyleControlC::CBrushStyleControlC(HWND hWnd) : CComboControl(kKind, hWnd) {}

CBrushStyleControlC::~CBrushStyleControlC() {
    m_pGraphic.reset();
    m_pViewport.reset();
}

int CBrushStyleControlC::OnCreate(LPCREATESTRUCT) {
    if (Default() == -1) return -1;
    m_pGraphic = MakeBrushSample(kComboBrushLook);
    m_pViewport.reset(ViewportNewEx());
    return 0;
}

void CBrushStyleControlC::FillControl(WPARAM, LPARAM lParam) {
    const Filling filling(m_hWnd);
    const bool hasTable = BeginFill(*this, lParam);
    AttachSample(m_pGraphic, m_pViewport, m_pTable, [] { return MakeBrushSample(kComboBrushLook); });
    if (!hasTable) return;
    ForEachBrushStyle(m_pTable, [this](const char* text) { AddControlItem(text); });
    SetCurSel(FindItem(m_nSelected));
}

void CBrushStyleControlC::MeasureItem(MEASUREITEMSTRUCT* pMIS) {
    pMIS->itemHeight = static_cast<UINT>(RowTextHeight(m_hWnd));
}

void CBrushStyleControlC::DrawItem(DRAWITEMSTRUCT* pDIS) {
    DrawRequest(*pDIS, {1, 2}, [=] {
        char name[kItemTextSize];
        const unsigned int style = RequestedStyle(*this, *pDIS, name);
        return DrawBrushStyleItem(*pDIS, kComboBrushLook,
                                  {style, name, m_pTable, m_pGraphic.get(), m_pViewport.get()});
    });
}
