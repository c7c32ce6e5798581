// CPropertySheet: creation and layout of tab row and buttons, and the frame around the page.

#include <afxapp.h>
#include <afxdlgs.h>
#include <afxres.h>

namespace {

struct Button {
    UINT id;
    UINT caption; // string: text, line feed, width in dialog units
    DWORD style;
};

const Button kButtons[] = {
    {IDOK, AFX_IDS_SHEET_OK, WS_GROUP | BS_DEFPUSHBUTTON},
    {IDCANCEL, AFX_IDS_SHEET_CANCEL, BS_PUSHBUTTON},
    {ID_APPLY_NOW, AFX_IDS_SHEET_APPLY, BS_PUSHBUTTON | WS_DISABLED},
    {ID_HELP, AFX_IDS_SHEET_HELP, BS_PUSHBUTTON},
};

CString Caption(UINT nIDS) {
    CString text;
    CString caption;
    text.LoadString(nIDS);
    AfxExtractSubString(caption, text, 0);
    return caption;
}

} // namespace

bool CPropertySheet::CreateButtons() {
    for (const Button& button : kButtons) {
        if (button.id == ID_APPLY_NOW && !m_bHasApply) continue;
        HWND hWnd = ::CreateWindowExA(
            0, "BUTTON", Caption(button.caption), WS_CHILD | WS_VISIBLE | WS_TABSTOP | button.style, 0, 0, 0, 0, m_hWnd,
            reinterpret_cast<HMENU>(static_cast<UINT_PTR>(button.id)), AfxGetInstanceHandle(), nullptr);
        if (hWnd == nullptr) return false;
        ::SendMessageA(hWnd, WM_SETFONT, reinterpret_cast<WPARAM>(m_font.m_hObject), FALSE);
    }
    SendMessage(DM_SETDEFID, IDOK);
    return true;
}

bool CPropertySheet::CreateTabRow(DWORD dwStyle, const RECT& place, UINT nID) {
    if (!m_tabRow.Create(dwStyle, place, this, nID)) return false;
    m_tabRow.SetFont(&m_font, FALSE);
    for (int i = 0; i < GetPageCount(); ++i)
        m_tabRow.InsertItem(i, GetPage(i)->GetTabText());
    return true;
}

// Dialog units refer to the font of the active page.
void CPropertySheet::MeasureUnits() {
    CRect units(4, 4, 50, 14);
    ::MapDialogRect(GetActivePage()->m_hWnd, &units);
    m_cxButtonGap = units.left;
    m_sizeTabMargin = CSize(units.left, units.top);
    m_sizeButton = CSize(units.right, units.bottom);
}

// The tabs are above the page; the buttons are in a row below it, aligned right.
void CPropertySheet::LayOut() {
    const CPropertyPage* page = GetActivePage();
    CRect pageRect;
    page->GetWindowRect(&pageRect);

    int buttons = 0;
    for (const Button& button : kButtons)
        buttons += ::GetDlgItem(m_hWnd, static_cast<int>(button.id)) != nullptr;
    const int buttonsWidth = buttons > 0 ? buttons * (m_sizeButton.cx + m_cxButtonGap) - m_cxButtonGap : 0;
    const int width = std::max(pageRect.Width(), buttonsWidth) + 2 * m_sizeTabMargin.cx + 2;

    const UINT flags = SWP_NOZORDER | SWP_NOACTIVATE;
    m_tabRow.SetWindowPos(nullptr, m_sizeTabMargin.cx, m_sizeTabMargin.cy, width - 2 * m_sizeTabMargin.cx, 0, flags);
    CRect tabs;
    m_tabRow.GetWindowRect(&tabs);
    const int pageTop = m_sizeTabMargin.cy + tabs.Height();
    ::SetWindowPos(page->m_hWnd, nullptr, m_sizeTabMargin.cx + 1, pageTop, 0, 0, flags | SWP_NOSIZE);

    int height = pageTop + pageRect.Height() + 1 + m_sizeTabMargin.cy;
    int x = width - m_sizeTabMargin.cx - buttonsWidth;
    for (const Button& button : kButtons) {
        HWND hWnd = ::GetDlgItem(m_hWnd, static_cast<int>(button.id));
        if (hWnd == nullptr) continue;
        ::SetWindowPos(hWnd, nullptr, x, height, m_sizeButton.cx, m_sizeButton.cy, flags);
        x += m_sizeButton.cx + m_cxButtonGap;
    }
    if (buttons > 0) height += m_sizeButton.cy + m_sizeTabMargin.cy;

    CRect window(0, 0, width, height);
    ::AdjustWindowRectEx(&window, GetStyle(), FALSE, GetExStyle());
    const CPoint place = GetCenteredPlace(window.Size());
    SetWindowPos(nullptr, place.x, place.y, window.Width(), window.Height(), flags);
}

void CPropertySheet::OnPaint() {
    CPaintDC dc(this);
    CRect frame = ActivePlace();
    if (frame.IsRectEmpty()) return;
    frame.InflateRect(1, 1);
    UINT sides = BF_RECT;
    if (m_tabRow.m_hWnd != nullptr) {
        // The frame is as wide as the tabs, which the buttons may make wider than the page. The tabs are its upper
        // edge.
        CRect tabs;
        m_tabRow.GetWindowRect(&tabs);
        ScreenToClient(&tabs);
        frame.right = tabs.right;
        if (m_tabRow.IsWindowVisible()) sides &= ~static_cast<UINT>(BF_TOP);
    }
    ::DrawEdge(dc.m_hDC, frame, EDGE_RAISED, sides | BF_SOFT);
}
