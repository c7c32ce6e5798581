// CWnd: windows and objects, creation and destruction, related windows, position.

#include "thread_state.h"
#include "window_link.h"

#include <afxapp.h>
#include <afxdialog.h>
#include <afxres.h>

#include <algorithm>
#include <set>
#include <string>
#include <utility>

IMPLEMENT_DYNCREATE(CWnd, CCmdTarget)

CWnd::CWnd() : m_hWnd(nullptr), m_modal(Modal::none), m_nModalResult(-1), m_pModalOwner(nullptr), m_pfnSuper(nullptr) {}

CWnd::~CWnd() {
    if (m_hWnd != nullptr) CWnd::DestroyWindow();
}

// ---- Objects and windows

CWnd* CWnd::FromHandlePermanent(HWND hWnd) {
    const auto& windows = AfxThreadState::Get().windows;
    const auto found = windows.find(hWnd);
    return found != windows.end() ? found->second : nullptr;
}

CWnd* CWnd::FromHandle(HWND hWnd) {
    if (hWnd == nullptr) return nullptr;
    if (CWnd* permanent = FromHandlePermanent(hWnd)) return permanent;
    return AfxThreadState::Get().temps.Get<CWnd>(hWnd, [hWnd](CWnd& wnd) { wnd.m_hWnd = hWnd; });
}

BOOL CWnd::Attach(HWND hWndNew) {
    if (hWndNew == nullptr) return FALSE;
    AfxThreadState::Get().windows[hWndNew] = this;
    m_hWnd = hWndNew;
    return TRUE;
}

HWND CWnd::Detach() {
    HWND hWnd = std::exchange(m_hWnd, nullptr);
    auto& windows = AfxThreadState::Get().windows;
    const auto found = windows.find(hWnd);
    if (found != windows.end() && found->second == this) windows.erase(found);
    return hWnd;
}

BOOL CWnd::SubclassWindow(HWND hWnd) {
    if (!::IsWindow(hWnd) || FromHandlePermanent(hWnd) != nullptr) return FALSE;
    AfxWindowLink::Subclass(this, hWnd);
    return TRUE;
}

CWnd* CWnd::GetDlgItem(int nID) const {
    return FromHandle(AfxThreadState::Get().items.Find(m_hWnd, nID));
}

BOOL CWnd::SubclassDlgItem(UINT nID, CWnd* pParent) {
    return SubclassWindow(AfxThreadState::Get().items.Find(pParent->m_hWnd, static_cast<int>(nID)));
}

HWND CWnd::UnsubclassWindow() {
    WNDPROC* super = GetSuperWndProcAddr();
    ::SetWindowLongPtrA(m_hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(*super));
    m_pfnSuper = nullptr; // a procedure shared by the class remains stored for its other objects
    return Detach();
}

BOOL CWnd::SubclassCtl3d(int) {
    return TRUE;
}

WNDPROC* CWnd::GetSuperWndProcAddr() {
    return &m_pfnSuper;
}

// ---- Creation and destruction

BOOL CWnd::Create(LPCSTR lpszClassName, LPCSTR lpszWindowName, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd,
                  UINT nID, CCreateContext* pContext) {
    return CreateEx(0, lpszClassName, lpszWindowName, dwStyle | WS_CHILD, rect.left, rect.top, rect.right - rect.left,
                    rect.bottom - rect.top, pParentWnd != nullptr ? pParentWnd->m_hWnd : nullptr,
                    reinterpret_cast<HMENU>(static_cast<UINT_PTR>(nID)), pContext);
}

BOOL CWnd::CreateEx(DWORD dwExStyle, LPCSTR lpszClassName, LPCSTR lpszWindowName, DWORD dwStyle, int x, int y,
                    int nWidth, int nHeight, HWND hWndParent, HMENU nIDorHMenu, LPVOID lpParam) {
    CREATESTRUCTA cs;
    cs.dwExStyle = dwExStyle;
    cs.lpszClass = lpszClassName;
    cs.lpszName = lpszWindowName;
    cs.style = static_cast<LONG>(dwStyle);
    cs.x = x;
    cs.y = y;
    cs.cx = nWidth;
    cs.cy = nHeight;
    cs.hwndParent = hWndParent;
    cs.hMenu = nIDorHMenu;
    cs.hInstance = AfxGetInstanceHandle();
    cs.lpCreateParams = lpParam;
    if (!PreCreateWindow(cs)) {
        PostNcDestroy();
        return FALSE;
    }
    const AfxWindowCreation creation(this);
    return ::CreateWindowExA(cs.dwExStyle, cs.lpszClass, cs.lpszName, static_cast<DWORD>(cs.style), cs.x, cs.y, cs.cx,
                             cs.cy, cs.hwndParent, cs.hMenu, cs.hInstance, cs.lpCreateParams) != nullptr;
}

BOOL CWnd::PreCreateWindow(CREATESTRUCTA& cs) {
    if (cs.lpszClass == nullptr) cs.lpszClass = AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursorA(nullptr, IDC_ARROW));
    return TRUE;
}

void CWnd::PreSubclassWindow() {}

BOOL CWnd::DestroyWindow() {
    if (m_hWnd == nullptr) return FALSE;
    HWND hWnd = m_hWnd;
    // With the framework's procedure, the object is removed from the map at the window's last message and can then be
    // deleted.
    const bool isInMap = FromHandlePermanent(hWnd) == this &&
                         reinterpret_cast<WNDPROC>(::GetWindowLongPtrA(hWnd, GWLP_WNDPROC)) == AfxGetAfxWndProc();
    const BOOL destroyed = ::DestroyWindow(hWnd);
    if (!isInMap) Detach();
    return destroyed;
}

void CWnd::OnNcDestroy() {
    AfxThreadState& state = AfxThreadState::Get();
    if (state.thread != nullptr && state.thread->m_pMainWnd == this) {
        state.thread->m_pMainWnd = nullptr;
        if (state.thread->m_bRunning) ::PostQuitMessage(0);
    }
    if (m_modal == Modal::running) EndModalLoop(-1);
    Default();
    state.paintFailures.erase(m_hWnd);
    Detach();
    m_pfnSuper = nullptr;
    PostNcDestroy();
}

void CWnd::PostNcDestroy() {}

void CWnd::OnFinalRelease() {
    if (m_hWnd != nullptr) {
        DestroyWindow();
    } else {
        PostNcDestroy();
    }
}

// ---- Messages

void CWnd::SendMessageToDescendants(UINT message, WPARAM wParam, LPARAM lParam, BOOL bDeep, BOOL bOnlyPerm) {
    SendMessageToDescendants(m_hWnd, message, wParam, lParam, bDeep, bOnlyPerm);
}

namespace {

struct MessageToDescendants {
    HWND ancestor;
    UINT message;
    WPARAM wParam;
    LPARAM lParam;
    BOOL deep, onlyPermanent;
};

BOOL CALLBACK SendToDescendant(HWND window, LPARAM lParam) {
    const auto& send = *reinterpret_cast<const MessageToDescendants*>(lParam);
    AfxThreadState::Get().items.Note(window);
    const bool isTarget = send.deep || ::GetParent(window) == send.ancestor;
    if (isTarget && (!send.onlyPermanent || CWnd::FromHandlePermanent(window) != nullptr))
        ::SendMessageA(window, send.message, send.wParam, send.lParam);
    return TRUE;
}

} // namespace

// EnumChildWindows takes half the time of calling GetWindow for each child.
void CWnd::SendMessageToDescendants(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam, BOOL bDeep, BOOL bOnlyPerm) {
    const MessageToDescendants send = {hWnd, message, wParam, lParam, bDeep, bOnlyPerm};
    ::EnumChildWindows(hWnd, SendToDescendant, reinterpret_cast<LPARAM>(&send));
}

BOOL CWnd::PreTranslateMessage(MSG*) {
    return FALSE;
}

BOOL CWnd::WalkPreTranslateTree(HWND hWndStop, MSG* pMsg) {
    for (HWND hWnd = pMsg->hwnd; hWnd != nullptr; hWnd = ::GetParent(hWnd)) {
        CWnd* wnd = FromHandlePermanent(hWnd);
        if (wnd != nullptr && wnd->PreTranslateMessage(pMsg)) return TRUE;
        if (hWnd == hWndStop) break;
    }
    return FALSE;
}

// ---- Data exchange

void CWnd::DoDataExchange(CDataExchange*) {}

BOOL CWnd::UpdateData(BOOL bSaveAndValidate) {
    CDataExchange exchange(this, bSaveAndValidate);
    try {
        DoDataExchange(&exchange);
        return TRUE;
    } catch (CUserException* e) {
        e->Delete();
    } catch (CException* e) {
        e->ReportError(MB_ICONEXCLAMATION);
        e->Delete();
    }
    return FALSE;
}

// ---- Text and style

BOOL CWnd::ModifyStyle(DWORD dwRemove, DWORD dwAdd, UINT nFlags) {
    const DWORD before = GetStyle();
    const DWORD after = (before & ~dwRemove) | dwAdd;
    if (after == before) return FALSE;
    ::SetWindowLongPtrA(m_hWnd, GWL_STYLE, static_cast<LONG_PTR>(after));
    if (nFlags != 0) {
        ::SetWindowPos(m_hWnd, nullptr, 0, 0, 0, 0, SWP_NOSIZE | SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE | nFlags);
    }
    return TRUE;
}

CFont* CWnd::GetFont() const {
    return CFont::FromHandle(reinterpret_cast<HFONT>(SendMessage(WM_GETFONT)));
}

void CWnd::SetFont(CFont* pFont, BOOL bRedraw) {
    HFONT font = pFont != nullptr ? static_cast<HFONT>(*pFont) : nullptr;
    SendMessage(WM_SETFONT, reinterpret_cast<WPARAM>(font), MAKELPARAM(bRedraw, 0));
}

void AfxSetWindowText(HWND hWndCtrl, LPCSTR lpszNew) {
    const CString text(lpszNew);
    if (::GetWindowTextLengthA(hWndCtrl) == text.GetLength()) {
        CString present;
        ::GetWindowTextA(hWndCtrl, present.GetBufferSetLength(text.GetLength()), text.GetLength() + 1);
        present.ReleaseBuffer();
        if (present == text) return;
    }
    ::SetWindowTextA(hWndCtrl, text);
}

// ---- Position

BOOL CWnd::SetWindowPos(const CWnd* pWndInsertAfter, int x, int y, int cx, int cy, UINT nFlags) {
    HWND after = pWndInsertAfter != nullptr ? pWndInsertAfter->m_hWnd : nullptr;
    return ::SetWindowPos(m_hWnd, after, x, y, cx, cy, nFlags);
}

void CWnd::ClientToScreen(LPRECT lpRect) const {
    ::MapWindowPoints(m_hWnd, nullptr, reinterpret_cast<LPPOINT>(lpRect), 2);
}

void CWnd::ScreenToClient(LPRECT lpRect) const {
    ::MapWindowPoints(nullptr, m_hWnd, reinterpret_cast<LPPOINT>(lpRect), 2);
}

CPoint CWnd::GetCenteredPlace(CSize size, const CWnd* pAlternateOwner) const {
    HWND owner = pAlternateOwner != nullptr ? pAlternateOwner->m_hWnd : ::GetParent(m_hWnd);
    MONITORINFO monitor = {};
    monitor.cbSize = sizeof monitor;
    ::GetMonitorInfoA(::MonitorFromWindow(owner != nullptr ? owner : m_hWnd, MONITOR_DEFAULTTOPRIMARY), &monitor);
    const CRect work = monitor.rcWork;
    CRect around = work;
    if (owner != nullptr && ::IsWindowVisible(owner) && !::IsIconic(owner)) ::GetWindowRect(owner, around);

    const CPoint place = around.CenterPoint() - CSize(size.cx / 2, size.cy / 2);
    const CPoint last = work.BottomRight() - size;
    return CPoint(std::max<int>(work.left, std::min(place.x, last.x)),
                  std::max<int>(work.top, std::min(place.y, last.y)));
}

void CWnd::CenterWindow(CWnd* pAlternateOwner) {
    CRect own;
    GetWindowRect(own);
    CPoint place = GetCenteredPlace(own.Size(), pAlternateOwner);
    if ((GetStyle() & WS_CHILD) != 0) ::ScreenToClient(::GetParent(m_hWnd), &place);
    ::SetWindowPos(m_hWnd, nullptr, place.x, place.y, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

// ---- Related windows

BOOL CWnd::IsFrameWnd() const {
    return FALSE;
}

CFrameWnd* CWnd::GetParentFrame() const {
    if (m_hWnd == nullptr) return nullptr;
    for (HWND hWnd = ::GetParent(m_hWnd); hWnd != nullptr; hWnd = ::GetParent(hWnd)) {
        CWnd* wnd = FromHandlePermanent(hWnd);
        if (wnd != nullptr && wnd->IsFrameWnd()) return static_cast<CFrameWnd*>(wnd);
    }
    return nullptr;
}

CFrameWnd* CWnd::GetTopLevelFrame() const {
    const CWnd* self = this;
    CFrameWnd* frame = IsFrameWnd() ? static_cast<CFrameWnd*>(const_cast<CWnd*>(self)) : GetParentFrame();
    while (frame != nullptr) {
        CFrameWnd* outer = frame->GetParentFrame();
        if (outer == nullptr) break;
        frame = outer;
    }
    return frame;
}

int CWnd::ShowMessage(LPCSTR lpszText, LPCSTR lpszCaption, UINT nType) {
    return ::MessageBoxA(m_hWnd, lpszText, lpszCaption != nullptr ? lpszCaption : AfxGetAppName(), nType);
}

void CWnd::OnHelp() {
    for (HWND hWnd = m_hWnd; hWnd != nullptr; hWnd = ::GetParent(hWnd)) {
        if (::SendMessageA(hWnd, WM_COMMANDHELP, 0, 0) != 0) return;
    }
}

// ---- Window classes

LPCSTR AfxRegisterWndClass(UINT nClassStyle, HCURSOR hCursor, HBRUSH hbrBackground, HICON hIcon) {
    CString name;
    name.Format("Afx:%x:%p:%p:%p", nClassStyle, static_cast<void*>(hCursor), static_cast<void*>(hbrBackground),
                static_cast<void*>(hIcon));
    static std::set<std::string> names; // returned pointers remain valid
    LPCSTR registered = names.insert(static_cast<LPCSTR>(name)).first->c_str();
    HINSTANCE instance = AfxGetInstanceHandle();
    WNDCLASSA found;
    if (::GetClassInfoA(instance, registered, &found)) return registered;

    WNDCLASSA windowClass = {};
    windowClass.style = nClassStyle;
    windowClass.lpfnWndProc = ::DefWindowProcA;
    windowClass.hInstance = instance;
    windowClass.hIcon = hIcon;
    windowClass.hCursor = hCursor;
    windowClass.hbrBackground = hbrBackground;
    windowClass.lpszClassName = registered;
    if (::RegisterClassA(&windowClass) == 0) AfxThrowResourceException();
    return registered;
}
