// CEnterEdit: the edit field of a combo box of the library.

#include "orlo/controls/enter_edit.h"

#include "orlo/controls/combo_control.h"

WNDPROC CEnterEdit::lpfnSuperWndProc = nullptr;

IMPLEMENT_DYNAMIC(CEnterEdit, CWnd)

BEGIN_MESSAGE_MAP(CEnterEdit, CWnd)
ON_WM_KEYUP()
END_MESSAGE_MAP()

CEnterEdit::CEnterEdit() = default;

CEnterEdit::~CEnterEdit() = default;

WNDPROC* CEnterEdit::GetSuperWndProcAddr() {
    return &lpfnSuperWndProc;
}

void CEnterEdit::OnKeyUp(UINT nChar, UINT, UINT) {
    Default();
    if (nChar != VK_RETURN) return;
    const CComboControl* const combo = ComboControlOf(::GetParent(m_hWnd));
    const CWinThread* const thread = AfxGetThread();
    const HWND main = thread && thread->m_pMainWnd ? thread->m_pMainWnd->m_hWnd : nullptr;
    if (!combo || !main) return;
    ::SendMessageA(main, WM_COMMAND, MAKEWPARAM(combo->m_nControlID, CBN_SELENDOK),
                   reinterpret_cast<LPARAM>(combo->m_hWnd));
    ::SetFocus(main);
}
