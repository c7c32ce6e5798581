// The owner of a modal window: disabled by the constructor, enabled by Release or the destructor.
#pragma once

#include <afxwnd.h>

class AfxModalOwner {
public:
    // The owner is the top-level window of pParentWnd, else the application's main window, else there is none.
    explicit AfxModalOwner(CWnd* pParentWnd);
    ~AfxModalOwner() { Release(); }
    AfxModalOwner(const AfxModalOwner&) = delete;
    AfxModalOwner& operator=(const AfxModalOwner&) = delete;

    HWND Window() const { return m_hWnd; }
    // Enables the owner. Must be called before the modal window is destroyed, so that the system activates the owner
    // and not a window of another program.
    void Release();

private:
    HWND m_hWnd;
    bool m_bDisabled;
};

// make(owner's window) creates and shows the window and returns false on failure.
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

// Waits for a message, calls PreTranslateMessage and dispatches it. Returns false for WM_QUIT and stores its code in
// nExitCode.
bool AfxPumpOneMessage(int& nExitCode);
