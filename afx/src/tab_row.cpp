// CTabRow: the system's tab control, kept as high as its tabs.

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
    // The tab in front rises above its row by two pixels.
    constexpr int kEdge = 2;
    return static_cast<int>(SendMessage(TCM_GETROWCOUNT)) * tab.Height() + 2 * kEdge;
}

void CTabRow::OnWindowPosChanging(WINDOWPOS* lpwndpos) {
    Default();
    if ((lpwndpos->flags & SWP_NOSIZE) == 0) lpwndpos->cy = GetHeight();
}

void CTabRow::OnSize(UINT, int cx, int cy) {
    Default();
    // Another width can have made another number of rows.
    if (cy != GetHeight()) SetWindowPos(nullptr, 0, 0, cx, 0, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

// A click brings the focus here past the dialog's own rules: a push button that had it would stay the default.
void CTabRow::OnSetFocus(CWnd*) {
    Default();
    GetParent()->SendMessage(WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(m_hWnd), TRUE);
}
