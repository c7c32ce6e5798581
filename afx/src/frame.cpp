// CFrameWnd: a main window with menu, accelerators and command routing.

#include <afxapp.h>

IMPLEMENT_DYNCREATE(CFrameWnd, CWnd)

CFrameWnd::CFrameWnd() : m_hAccelTable(nullptr) {}
CFrameWnd::~CFrameWnd() = default;

const CRect CFrameWnd::rectDefault(CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT);

BOOL CFrameWnd::Create(LPCSTR lpszClassName, LPCSTR lpszWindowName, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd,
                       LPCSTR lpszMenuName, DWORD dwExStyle, CCreateContext* pContext) {
    HMENU menu = nullptr;
    if (lpszMenuName != nullptr) {
        menu = ::LoadMenuA(AfxFindResourceHandle(lpszMenuName, reinterpret_cast<LPCSTR>(RT_MENU)), lpszMenuName);
        if (menu == nullptr) return FALSE;
    }
    const bool isDefault = ::EqualRect(&rect, &rectDefault);
    return CreateEx(dwExStyle, lpszClassName, lpszWindowName, dwStyle, rect.left, rect.top,
                    isDefault ? CW_USEDEFAULT : rect.right - rect.left,
                    isDefault ? CW_USEDEFAULT : rect.bottom - rect.top,
                    pParentWnd != nullptr ? pParentWnd->m_hWnd : nullptr, menu, pContext);
}

BOOL CFrameWnd::LoadFrame(UINT nIDResource, DWORD dwDefaultStyle, CWnd* pParentWnd) {
    LPCSTR name = MAKEINTRESOURCEA(nIDResource);
    HICON icon = ::LoadIconA(AfxFindResourceHandle(name, reinterpret_cast<LPCSTR>(RT_GROUP_ICON)), name);
    HMENU menu = ::LoadMenuA(AfxFindResourceHandle(name, reinterpret_cast<LPCSTR>(RT_MENU)), name);
    CString title;
    title.LoadString(nIDResource);
    LPCSTR windowClass = AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursorA(nullptr, IDC_ARROW), nullptr, icon);
    LoadAccelTable(name);
    return CreateEx(0, windowClass, title, dwDefaultStyle, CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT,
                    pParentWnd != nullptr ? pParentWnd->m_hWnd : nullptr, menu);
}

BOOL CFrameWnd::LoadAccelTable(LPCSTR lpszResourceName) {
    HINSTANCE module = AfxFindResourceHandle(lpszResourceName, reinterpret_cast<LPCSTR>(RT_ACCELERATOR));
    m_hAccelTable = ::LoadAcceleratorsA(module, lpszResourceName);
    return m_hAccelTable != nullptr;
}

BOOL CFrameWnd::IsFrameWnd() const {
    return TRUE;
}

BOOL CFrameWnd::PreTranslateMessage(MSG* pMsg) {
    if (CWnd::PreTranslateMessage(pMsg)) return TRUE;
    return m_hAccelTable != nullptr && ::TranslateAcceleratorA(m_hWnd, m_hAccelTable, pMsg);
}

BOOL CFrameWnd::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) {
    if (CWnd::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo)) return TRUE;
    CWinApp* app = AfxGetApp();
    return app != nullptr && app->OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
}

void CFrameWnd::PostNcDestroy() {
    delete this;
}
