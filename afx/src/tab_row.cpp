// CTabRow: a tab control whose height is that of its rows of tabs.

#include <afxdlgs.h>

IMPLEMENT_DYNAMIC(CTabRow, CTabCtrl)

BEGIN_MESSAGE_MAP(CTabRow, CTabCtrl)
ON_WM_WINDOWPOSCHANGING()
ON_WM_SIZE()
ON_WM_SETFOCUS()
END_MESSAGE_MAP()

CTabRow::CTabRow() = default;
CTabRow::~CTabRow() = default;

int CTabRow::GetHeight() const {
    CRect tab;
    if (!GetItemRect(0, &tab)) return 0;
    // The selected tab is two pixels higher than its row.
    constexpr int kEdge = 2;
    return static_cast<int>(SendMessage(TCM_GETROWCOUNT)) * tab.Height() + 2 * kEdge;
}

void CTabRow::OnWindowPosChanging(WINDOWPOS* lpwndpos) {
    Default();
    if ((lpwndpos->flags & SWP_NOSIZE) == 0) lpwndpos->cy = GetHeight();
}

void CTabRow::OnSize(UINT, int cx, int cy) {
    Default();
    // The number of rows can depend on the width.
    if (cy != GetHeight()) SetWindowPos(nullptr, 0, 0, cx, 0, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

// A click sets the focus without the dialog manager: a push button that had the focus would remain the default button.
void CTabRow::OnSetFocus(CWnd*) {
    Default();
    GetParent()->SendMessage(WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(m_hWnd), TRUE);
}
