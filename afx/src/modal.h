// What a modal window does to its owner: disabled from construction, enabled again by Release or the
// destructor.
#pragma once

#include <afxwnd.h>

class AfxModalOwner {
public:
    // The top-level window of pParentWnd, else the application's main window, else none.
    explicit AfxModalOwner(CWnd* pParentWnd);
    ~AfxModalOwner() { Release(); }
    AfxModalOwner(const AfxModalOwner&) = delete;
    AfxModalOwner& operator=(const AfxModalOwner&) = delete;

    HWND Window() const { return m_hWnd; }
    // Before the modal window goes: the system then activates the owner, and not another program's window.
    void Release();

private:
    HWND m_hWnd;
    bool m_bDisabled;
};

// Takes one message from the queue, pretranslates and dispatches it. False: it was WM_QUIT, whose code is in
// nExitCode.
bool AfxPumpOneMessage(int& nExitCode);
