// Connects windows and objects; for the parts of the framework that create windows.
#pragma once

#include <afxwnd.h>

class AfxWindowLink {
public:
    // Attaches the window to the object and subclasses it with the framework's procedure.
    static void Subclass(CWnd* wnd, HWND hWnd);
    static LRESULT Call(CWnd* wnd, UINT message, WPARAM wParam, LPARAM lParam) {
        return wnd->WindowProc(message, wParam, lParam);
    }
    static void PostNcDestroy(CWnd* wnd) { wnd->PostNcDestroy(); }
};

// Guard that attaches the next created window to the object. If no window is created, the destructor calls
// PostNcDestroy, as if a window had been created and destroyed; the object can delete itself then.
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
