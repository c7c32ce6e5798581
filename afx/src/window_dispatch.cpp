// CWnd: dispatches messages to handlers: message maps, commands, owner drawing, default handling.

#include "handler_as.h"
#include "thread_state.h"

#include <afxwnd.h>

#include <windowsx.h>

BEGIN_MESSAGE_MAP(CWnd, CCmdTarget)
ON_WM_DRAWITEM()
ON_WM_MEASUREITEM()
ON_WM_COMPAREITEM()
ON_WM_DELETEITEM()
ON_WM_NCDESTROY()
END_MESSAGE_MAP()

namespace {

const AFX_MSGMAP_ENTRY* FindMessage(const AFX_MSGMAP* map, UINT message) {
    for (; map != nullptr; map = map->pBaseMap) {
        for (const AFX_MSGMAP_ENTRY* entry = map->lpEntries; entry->nSig != AfxSig_end; ++entry) {
            if (entry->nMessage == message) return entry;
        }
    }
    return nullptr;
}

CPoint PointOf(LPARAM lParam) {
    return CPoint(GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam));
}

CWnd* WindowOf(WPARAM wParam) {
    return CWnd::FromHandle(reinterpret_cast<HWND>(wParam));
}

template <class Struct>
Struct* RecordOf(LPARAM lParam) {
    return reinterpret_cast<Struct*>(lParam);
}

// Calls a handler without a result. The result of the message is 0.
template <class... Parameters, class... Arguments>
LRESULT Call(CWnd* wnd, AFX_PMSG pfn, Arguments... arguments) {
    (wnd->*HandlerAs<void (CWnd::*)(Parameters...)>(pfn))(arguments...);
    return 0;
}

template <class Result, class... Parameters, class... Arguments>
LRESULT CallForResult(CWnd* wnd, AFX_PMSG pfn, Arguments... arguments) {
    return (wnd->*HandlerAs<Result (CWnd::*)(Parameters...)>(pfn))(arguments...);
}

LRESULT CallOwnerDraw(CWnd* wnd, const AFX_MSGMAP_ENTRY& entry, int control, LPARAM l) {
    const AFX_PMSG pfn = entry.pfn;
    switch (entry.nSig) {
    case AfxSig_vdraw:
        return Call<int, LPDRAWITEMSTRUCT>(wnd, pfn, control, RecordOf<DRAWITEMSTRUCT>(l));
    case AfxSig_vmeas:
        return Call<int, LPMEASUREITEMSTRUCT>(wnd, pfn, control, RecordOf<MEASUREITEMSTRUCT>(l));
    case AfxSig_icomp:
        return CallForResult<int, int, LPCOMPAREITEMSTRUCT>(wnd, pfn, control, RecordOf<COMPAREITEMSTRUCT>(l));
    case AfxSig_vdel:
        return Call<int, LPDELETEITEMSTRUCT>(wnd, pfn, control, RecordOf<DELETEITEMSTRUCT>(l));
    default:
        ASSERT(false);
        return 0;
    }
}

LRESULT CallHandler(CWnd* wnd, const AFX_MSGMAP_ENTRY& entry, WPARAM w, LPARAM l) {
    const AFX_PMSG pfn = entry.pfn;
    const int low = GET_X_LPARAM(l);
    const int high = GET_Y_LPARAM(l);
    const auto flags = static_cast<UINT>(w);
    switch (entry.nSig) {
    case AfxSig_vv:
        return Call<>(wnd, pfn);
    case AfxSig_lwl:
        return CallForResult<LRESULT, WPARAM, LPARAM>(wnd, pfn, w, l);
    case AfxSig_is:
        return CallForResult<int, LPCREATESTRUCTA>(wnd, pfn, RecordOf<CREATESTRUCTA>(l));
    case AfxSig_vwii:
        return Call<UINT, int, int>(wnd, pfn, flags, low, high);
    case AfxSig_vwp:
        return Call<UINT, CPoint>(wnd, pfn, flags, PointOf(l));
    case AfxSig_bwsp:
        return CallForResult<BOOL, UINT, short, CPoint>(wnd, pfn, static_cast<UINT>(GET_KEYSTATE_WPARAM(w)),
                                                        GET_WHEEL_DELTA_WPARAM(w), PointOf(l));
    case AfxSig_vwww:
        return Call<UINT, UINT, UINT>(wnd, pfn, flags, static_cast<UINT>(LOWORD(l)), static_cast<UINT>(HIWORD(l)));
    case AfxSig_vt:
        return Call<UINT_PTR>(wnd, pfn, w);
    case AfxSig_vpos:
        return Call<WINDOWPOS*>(wnd, pfn, RecordOf<WINDOWPOS>(l));
    case AfxSig_bD:
        return CallForResult<BOOL, CDC*>(wnd, pfn, CDC::FromHandle(reinterpret_cast<HDC>(w)));
    case AfxSig_vW:
        return Call<CWnd*>(wnd, pfn, WindowOf(w));
    case AfxSig_vWl:
        return Call<CWnd*>(wnd, pfn, WindowOf(static_cast<WPARAM>(l)));
    case AfxSig_vdrop:
        return Call<HDROP>(wnd, pfn, reinterpret_cast<HDROP>(w));
    default:
        return CallOwnerDraw(wnd, entry, static_cast<int>(w), l);
    }
}

} // namespace

LRESULT CWnd::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    LRESULT result = 0;
    if (OnWndMsg(message, wParam, lParam, &result)) return result; // this object can have been deleted
    return DefWindowProc(message, wParam, lParam);
}

BOOL CWnd::OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    if (message == WM_COMMAND) {
        *pResult = OnCommand(wParam, lParam);
        return *pResult != 0;
    }
    if (message == WM_NOTIFY) return OnNotify(wParam, lParam, pResult);
    const AFX_MSGMAP_ENTRY* entry = FindMessage(GetMessageMap(), message);
    if (entry == nullptr) return FALSE;
    *pResult = CallHandler(this, *entry, wParam, lParam);
    // An unhandled wheel message is passed to the parent, as by default.
    return entry->nSig != AfxSig_bwsp || *pResult != 0;
}

LRESULT CWnd::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    const WNDPROC super = *GetSuperWndProcAddr();
    if (super == nullptr) return ::DefWindowProcA(m_hWnd, message, wParam, lParam);
    return ::CallWindowProcA(super, m_hWnd, message, wParam, lParam);
}

LRESULT CWnd::Default() {
    const MSG message = AfxThreadState::Get().lastMessage;
    return DefWindowProc(message.message, message.wParam, message.lParam);
}

BOOL CWnd::OnCommand(WPARAM wParam, LPARAM lParam) {
    // Commands of menus and accelerators have no control; the high word only distinguishes the two.
    const int code = lParam != 0 ? HIWORD(wParam) : CN_COMMAND;
    return OnCmdMsg(LOWORD(wParam), code, nullptr, nullptr);
}

BOOL CWnd::OnNotify(WPARAM, LPARAM, LRESULT*) {
    return FALSE;
}

BOOL CWnd::OnChildNotify(UINT, WPARAM, LPARAM, LRESULT*) {
    return FALSE;
}

bool CWnd::NotifyChild(HWND hWndChild, LRESULT* pResult) {
    CWnd* child = FromHandlePermanent(hWndChild);
    if (child == nullptr) return false;
    const MSG message = AfxThreadState::Get().lastMessage;
    return child->OnChildNotify(message.message, message.wParam, message.lParam, pResult);
}

void CWnd::OnDrawItem(int, LPDRAWITEMSTRUCT lpDrawItemStruct) {
    LRESULT result = 0;
    if (lpDrawItemStruct->CtlType == ODT_MENU || !NotifyChild(lpDrawItemStruct->hwndItem, &result)) Default();
}

void CWnd::OnMeasureItem(int nIDCtl, LPMEASUREITEMSTRUCT lpMeasureItemStruct) {
    // The only one of the four structures without the window's handle.
    LRESULT result = 0;
    if (lpMeasureItemStruct->CtlType != ODT_MENU) {
        HWND control = AfxThreadState::Get().items.Find(m_hWnd, nIDCtl);
        if (NotifyChild(control, &result)) return;
    }
    Default();
}

int CWnd::OnCompareItem(int, LPCOMPAREITEMSTRUCT lpCompareItemStruct) {
    LRESULT result = 0;
    if (NotifyChild(lpCompareItemStruct->hwndItem, &result)) return static_cast<int>(result);
    return static_cast<int>(Default());
}

void CWnd::OnDeleteItem(int, LPDELETEITEMSTRUCT lpDeleteItemStruct) {
    LRESULT result = 0;
    if (!NotifyChild(lpDeleteItemStruct->hwndItem, &result)) Default();
}

int CWnd::OnCreate(LPCREATESTRUCTA) {
    return static_cast<int>(Default());
}
int CWnd::OnNcCreate(LPCREATESTRUCTA) {
    return static_cast<int>(Default());
}
void CWnd::OnDestroy() {
    Default();
}
void CWnd::OnClose() {
    Default();
}
void CWnd::OnPaint() {
    Default();
}
BOOL CWnd::OnEraseBkgnd(CDC*) {
    return static_cast<BOOL>(Default());
}
void CWnd::OnSize(UINT, int, int) {
    Default();
}
void CWnd::OnWindowPosChanging(WINDOWPOS*) {
    Default();
}
void CWnd::OnSetFocus(CWnd*) {
    Default();
}
void CWnd::OnTimer(UINT_PTR) {
    Default();
}
void CWnd::OnLButtonDown(UINT, CPoint) {
    Default();
}
void CWnd::OnLButtonUp(UINT, CPoint) {
    Default();
}
void CWnd::OnMouseMove(UINT, CPoint) {
    Default();
}
void CWnd::OnKeyDown(UINT, UINT, UINT) {
    Default();
}
void CWnd::OnKeyUp(UINT, UINT, UINT) {
    Default();
}
