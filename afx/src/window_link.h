// The tie between a window and its object, for the parts of the framework that make it.
#pragma once

#include <afxwnd.h>

class AfxWindowLink {
public:
    // Makes the object that of the window, and the framework's procedure the window's.
    static void Subclass(CWnd* wnd, HWND hWnd);
    static LRESULT Call(CWnd* wnd, UINT message, WPARAM wParam, LPARAM lParam) {
        return wnd->WindowProc(message, wParam, lParam);
    }
    static void PostNcDestroy(CWnd* wnd) { wnd->PostNcDestroy(); }
};

// From creation to end of the block: the next window made is the object's. If none was made, the object
// learns of it by PostNcDestroy, as after a window that was made and has gone; it may be deleted then.
class AfxWindowCreation {
public:
    explicit AfxWindowCreation(CWnd* wnd) : m_wnd(wnd) { AfxHookWindowCreate(wnd); }
    ~AfxWindowCreation() {
        if (!AfxUnhookWindowCreate()) AfxWindowLink::PostNcDestroy(m_wnd);
    }
    AfxWindowCreation(const AfxWindowCreation&) = delete;
    AfxWindowCreation& operator=(const AfxWindowCreation&) = delete;

private:
    CWnd* m_wnd;
};
