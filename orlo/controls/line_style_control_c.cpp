// CLineStyleControlC: a combo box of line styles.

#include "orlo/controls/line_style_control_c.h"

#include "orlo/controls/filling.h"
#include "orlo/controls/item_drawing.h"
#include "orlo/controls/line_style_item.h"
#include "orlo/controls/table_control.h"

namespace {

constexpr unsigned int kKind = kControlLineStyleCombo;

} // namespace

IMPLEMENT_DYNCREATE(CLineStyleControlC, CComboControl)

BEGIN_MESSAGE_MAP(CLineStyleControlC, CComboControl)
ON_WM_CREATE()
END_MESSAGE_MAP()

CLineStyleControlC::CLineStyleControlC(int bAddDefaultItem)
    : CComboControl(kKind), m_bAddDefaultItem(bAddDefaultItem) {}

CLineStyleControlC::CLineStyleControlC(HWND hWnd, int bAddDefaultItem)
    : CComboControl(kKind, hWnd), m_bAddDefaultItem(bAddDefaultItem) {}

CLineStyleControlC::~CLineStyleControlC() {
    m_pGraphic.reset();
    m_pViewport.reset();
}

int CLineStyleControlC::OnCreate(LPCREATESTRUCT lpCreateStruct) {
    if (Default() == -1) return -1;
    m_pGraphic = MakeComboLineSample(lpCreateStruct->cx);
    m_pViewport.reset(ViewportNewEx());
    return 0;
}

void CLineStyleControlC::FillControl(WPARAM, LPARAM lParam) {
    const Filling filling(m_hWnd);
    const bool hasTable = BeginFill(*this, lParam);
    AttachSample(m_pGraphic, m_pViewport, m_pTable,
                 [this] { return MakeComboLineSample(WindowSize(m_hWnd).cx); });
    if (!hasTable) return;
    ForEachLineStyle(m_pTable, m_bAddDefaultItem != 0, [this](const char* text) { AddControlItem(text); });
    SetCurSel(FindItem(m_nSelected));
}

void CLineStyleControlC::MeasureItem(MEASUREITEMSTRUCT* pMIS) {
    pMIS->itemHeight = static_cast<UINT>(RowTextHeight(m_hWnd));
}

void CLineStyleControlC::DrawItem(DRAWITEMSTRUCT* pDIS) {
    DrawRequest(*pDIS, {0, 0}, [=] {
        char name[kItemTextSize];
        const unsigned int style = RequestedStyle(*this, *pDIS, name);
        return DrawLineStyleItem(*pDIS, kComboLineLook,
                                 {style, name, m_pTable, m_pGraphic.get(), m_pViewport.get()});
    });
}
