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

// make(owner's window) makes and shows the window: false if it could not.
template <class Make>
int CWnd::RunModal(CWnd* pParentWnd, Make make) {
    AfxModalOwner owner(pParentWnd);
    m_pModalOwner = &owner;
    m_modal = Modal::running;
    m_nModalResult = -1;
    if (make(owner.Window())) {
        RunModalLoop();
    } else {
        m_modal = Modal::none;
    }
    owner.Release();
    m_pModalOwner = nullptr;
    DestroyWindow();
    return m_nModalResult;
}

// Takes one message from the queue, pretranslates and dispatches it. False: it was WM_QUIT, whose code is in
// nExitCode.
bool AfxPumpOneMessage(int& nExitCode);
