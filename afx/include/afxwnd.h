// CCmdTarget and CWnd: an object with a message map, and one that represents a window.
//
// A CWnd and its window find each other by the permanent map, from Create, Attach or SubclassWindow until the
// window is destroyed or Detach is called. FromHandle makes a temporary object for a window that has none:
// good until the message now handled has been dealt with.
//
// No exception leaves a window procedure: what a handler throws goes to CWinThread::ProcessWndProcException.
//
// Texts and records are the 8-bit ones (LPCREATESTRUCTA), also in a program that defines UNICODE. Members whose names
// are macros of windows.h (GetWindowText) have another name there: they are inline, so that no name is missing at the
// link.
#pragma once

#include <afxgdi.h>
#include <afxmsg.h>

#include <shellapi.h>

class CDataExchange;
class CFrameWnd;
struct CCreateContext;

// A virtual function has one name: the system's macro would give it another one where UNICODE is defined.
#undef DefWindowProc
static inline LRESULT CALLBACK DefWindowProc(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam) {
#ifdef UNICODE
    return ::DefWindowProcW(hWnd, message, wParam, lParam);
#else
    return ::DefWindowProcA(hWnd, message, wParam, lParam);
#endif
}

struct AFX_CMDHANDLERINFO {
    CCmdTarget* pTarget;
    AFX_PMSG pmf;
};

class AFX_API CCmdTarget : public CObject {
    DECLARE_DYNAMIC(CCmdTarget)
public:
    CCmdTarget();
    ~CCmdTarget() override;
    static const AFX_MSGMAP messageMap;

    // The last user has released the object: here deletes it.
    virtual void OnFinalRelease();

    // Runs the handler of a command (nCode CN_COMMAND) or notification, or only names it in pHandlerInfo if
    // given. False: there isn't one.
    virtual BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo);

    // The hourglass; calls nest.
    void BeginWaitCursor();
    void EndWaitCursor();

protected:
    virtual const AFX_MSGMAP* GetMessageMap() const;
};

class AFX_API CWnd : public CCmdTarget {
    DECLARE_DYNCREATE(CWnd)
public:
    CWnd();
    // Destroys the window if there still is one; the derived class no longer gets a message of that.
    ~CWnd() override;

    HWND m_hWnd;
    HWND GetSafeHwnd() const { return m_hWnd; }

    // ---- Object and window
    static CWnd* FromHandle(HWND hWnd);
    static CWnd* FromHandlePermanent(HWND hWnd);
    BOOL Attach(HWND hWndNew);
    HWND Detach();
    // The window's messages come to this object from now on. False: there is no such window, or the object
    // has one.
    BOOL SubclassWindow(HWND hWnd);
    BOOL SubclassDlgItem(UINT nID, CWnd* pParent);
    // Gives the window its procedure back and returns the window.
    HWND UnsubclassWindow();
    // For the look of an earlier system, which today's controls have by themselves: does nothing, returns
    // TRUE.
    BOOL SubclassCtl3d(int nControlType);

    // A child window (WS_CHILD is added; a frame has a Create of its own). A null class name is the framework's own:
    // arrow, double clicks, no background. False: no window was made.
    virtual BOOL Create(LPCSTR lpszClassName, LPCSTR lpszWindowName, DWORD dwStyle, const RECT& rect,
                        CWnd* pParentWnd, UINT nID, CCreateContext* pContext = nullptr);
    BOOL CreateEx(DWORD dwExStyle, LPCSTR lpszClassName, LPCSTR lpszWindowName, DWORD dwStyle, int x, int y,
                  int nWidth, int nHeight, HWND hWndParent, HMENU nIDorHMenu, LPVOID lpParam = nullptr);
    virtual BOOL DestroyWindow();

    // ---- Messages
    LRESULT SendMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const {
        return ::SendMessageA(m_hWnd, message, wParam, lParam);
    }
    BOOL PostMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const {
        return ::PostMessageA(m_hWnd, message, wParam, lParam);
    }
    // Down the tree if bDeep; without bOnlyPerm also to windows that have no object.
    void SendMessageToDescendants(UINT message, WPARAM wParam = 0, LPARAM lParam = 0, BOOL bDeep = TRUE,
                                  BOOL bOnlyPerm = FALSE);
    static void SendMessageToDescendants(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam, BOOL bDeep,
                                         BOOL bOnlyPerm);
    // A message before it is dispatched; non-zero: it has been dealt with.
    virtual BOOL PreTranslateMessage(MSG* pMsg);
    BOOL IsDialogMessage(MSG* pMsg) { return ::IsDialogMessageA(m_hWnd, pMsg); }
    // Asks the permanent objects from the message's window up to hWndStop.
    static BOOL WalkPreTranslateTree(HWND hWndStop, MSG* pMsg);

    // ---- A loop of its own, until EndModalLoop. The result is that of the first such call; -1 if the window goes.
    int RunModalLoop();
    void EndModalLoop(int nResult);

    // ---- Data exchange
    // False: a check has failed, and the user has been informed.
    BOOL UpdateData(BOOL bSaveAndValidate = TRUE);

    // ---- Text and style
    void SetWindowText(LPCSTR lpszString) { ::SetWindowTextA(m_hWnd, lpszString); }
    int GetWindowText(LPSTR lpszStringBuf, int nMaxCount) const {
        return ::GetWindowTextA(m_hWnd, lpszStringBuf, nMaxCount);
    }
    void GetWindowText(CString& rString) const {
        const int length = GetWindowTextLength();
        ::GetWindowTextA(m_hWnd, rString.GetBufferSetLength(length), length + 1);
        rString.ReleaseBuffer();
    }
    int GetWindowTextLength() const { return ::GetWindowTextLengthA(m_hWnd); }
    DWORD GetStyle() const { return static_cast<DWORD>(::GetWindowLongPtrA(m_hWnd, GWL_STYLE)); }
    DWORD GetExStyle() const { return static_cast<DWORD>(::GetWindowLongPtrA(m_hWnd, GWL_EXSTYLE)); }
    // With nFlags also SetWindowPos of these flags, no move and no size. False: nothing was to change.
    BOOL ModifyStyle(DWORD dwRemove, DWORD dwAdd, UINT nFlags = 0);
    CFont* GetFont() const;
    void SetFont(CFont* pFont, BOOL bRedraw = TRUE);

    // ---- Place and look
    void MoveWindow(const RECT& r, BOOL bRepaint = TRUE) {
        ::MoveWindow(m_hWnd, r.left, r.top, r.right - r.left, r.bottom - r.top, bRepaint);
    }
    void MoveWindow(int x, int y, int nWidth, int nHeight, BOOL bRepaint = TRUE) {
        ::MoveWindow(m_hWnd, x, y, nWidth, nHeight, bRepaint);
    }
    BOOL SetWindowPos(const CWnd* pWndInsertAfter, int x, int y, int cx, int cy, UINT nFlags);
    void GetWindowRect(LPRECT lpRect) const { ::GetWindowRect(m_hWnd, lpRect); }
    void GetClientRect(LPRECT lpRect) const { ::GetClientRect(m_hWnd, lpRect); }
    void ClientToScreen(LPPOINT lpPoint) const { ::ClientToScreen(m_hWnd, lpPoint); }
    void ClientToScreen(LPRECT lpRect) const;
    void ScreenToClient(LPPOINT lpPoint) const { ::ScreenToClient(m_hWnd, lpPoint); }
    void ScreenToClient(LPRECT lpRect) const;
    // In the middle of pAlternateOwner, or of the owner, and wholly on the monitor.
    void CenterWindow(CWnd* pAlternateOwner = nullptr);
    BOOL ShowWindow(int nCmdShow) { return ::ShowWindow(m_hWnd, nCmdShow); }
    BOOL IsWindowVisible() const { return ::IsWindowVisible(m_hWnd); }
    BOOL EnableWindow(BOOL bEnable = TRUE) { return ::EnableWindow(m_hWnd, bEnable); }
    BOOL IsWindowEnabled() const { return ::IsWindowEnabled(m_hWnd); }
    void UpdateWindow() { ::UpdateWindow(m_hWnd); }
    void Invalidate(BOOL bErase = TRUE) { ::InvalidateRect(m_hWnd, nullptr, bErase); }
    void InvalidateRect(LPCRECT lpRect, BOOL bErase = TRUE) { ::InvalidateRect(m_hWnd, lpRect, bErase); }

    // ---- Family
    CWnd* GetParent() const { return FromHandle(::GetParent(m_hWnd)); }
    // The outermost frame window around this one, owners included; null if there isn't one.
    CFrameWnd* GetTopLevelFrame() const;
    CFrameWnd* GetParentFrame() const;
    virtual BOOL IsFrameWnd() const;
    CWnd* GetDlgItem(int nID) const { return FromHandle(::GetDlgItem(m_hWnd, nID)); }
    int GetDlgCtrlID() const { return ::GetDlgCtrlID(m_hWnd); }
    void SetDlgItemText(int nID, LPCSTR lpszString) { ::SetDlgItemTextA(m_hWnd, nID, lpszString); }

    // ---- Input, timers, files
    CWnd* SetFocus() { return FromHandle(::SetFocus(m_hWnd)); }
    static CWnd* GetFocus() { return FromHandle(::GetFocus()); }
    CWnd* SetCapture() { return FromHandle(::SetCapture(m_hWnd)); }
    UINT_PTR SetTimer(UINT_PTR nIDEvent, UINT nElapse) {
        return ::SetTimer(m_hWnd, nIDEvent, nElapse, nullptr);
    }
    BOOL KillTimer(UINT_PTR nIDEvent) { return ::KillTimer(m_hWnd, nIDEvent); }
    void DragAcceptFiles(BOOL bAccept = TRUE) { ::DragAcceptFiles(m_hWnd, bAccept); }
    // A null caption is the application's name.
    int MessageBox(LPCSTR lpszText, LPCSTR lpszCaption = nullptr, UINT nType = MB_OK) {
        return ShowMessage(lpszText, lpszCaption, nType);
    }

    // Destroys the window if there is one, which ends in PostNcDestroy; otherwise calls that.
    void OnFinalRelease() override;
    // Help for this window: asks it and its parents by WM_COMMANDHELP, the nearest first, until one gives
    // help.
    afx_msg void OnHelp();

protected:
    // Where the procedure is kept that the window had before it was this object's; null there: the system's
    // default.
    virtual WNDPROC* GetSuperWndProcAddr();
    virtual BOOL PreCreateWindow(CREATESTRUCTA& cs);
    virtual void PreSubclassWindow();

    // Result 0: the command or notification was not handled.
    virtual BOOL OnCommand(WPARAM wParam, LPARAM lParam);
    virtual BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    virtual LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam);
    virtual BOOL OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    // The procedure that the window had before.
    virtual LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam);
    // A message about this window that its parent has got (owner drawing). Non-zero: handled.
    virtual BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    // The last call for a window, which the object no longer has. An object on the heap may delete itself here.
    virtual void PostNcDestroy();
    virtual void DoDataExchange(CDataExchange* pDX);

    // The message now handled goes to DefWindowProc, its parameters as they came.
    LRESULT Default();

    // Handlers for ON_WM_... of a derived class to call; each is Default.
    afx_msg int OnCreate(LPCREATESTRUCTA lpCreateStruct);
    afx_msg int OnNcCreate(LPCREATESTRUCTA lpCreateStruct);
    afx_msg void OnDestroy();
    afx_msg void OnClose();
    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnWindowPosChanging(WINDOWPOS* lpwndpos);
    afx_msg void OnSetFocus(CWnd* pOldWnd);
    afx_msg void OnTimer(UINT_PTR nIDEvent);
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnLButtonUp(UINT nFlags, CPoint point);
    afx_msg void OnMouseMove(UINT nFlags, CPoint point);
    afx_msg void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnKeyUp(UINT nChar, UINT nRepCnt, UINT nFlags);

    // Owner drawing: to the permanent object of the control, else Default.
    afx_msg void OnDrawItem(int nIDCtl, LPDRAWITEMSTRUCT lpDrawItemStruct);
    afx_msg void OnMeasureItem(int nIDCtl, LPMEASUREITEMSTRUCT lpMeasureItemStruct);
    afx_msg int OnCompareItem(int nIDCtl, LPCOMPAREITEMSTRUCT lpCompareItemStruct);
    afx_msg void OnDeleteItem(int nIDCtl, LPDELETEITEMSTRUCT lpDeleteItemStruct);
    afx_msg void OnNcDestroy();

    // For DoModal: from before the window is made until it is gone. The owner is disabled meanwhile.
    template <class Make>
    int RunModal(CWnd* pParentWnd, Make make);
    // Hides the window, gives the owner back and ends the loop; a window that is not modal is destroyed.
    void CloseModal(int nResult);
    bool IsModal() const; // and not ended

    // Where CenterWindow puts a window of that size; screen coordinates.
    CPoint GetCenteredPlace(CSize size, const CWnd* pAlternateOwner = nullptr) const;

    DECLARE_MESSAGE_MAP()

private:
    friend class AfxWindowLink;
    // A loop begins as running, at the latest with RunModalLoop: EndModalLoop may come before that.
    enum class Modal { none, running, ended };
    Modal m_modal;
    int m_nModalResult;
    class AfxModalOwner* m_pModalOwner; // while a window is modal and not ended
    WNDPROC m_pfnSuper;
    int ShowMessage(LPCSTR lpszText, LPCSTR lpszCaption, UINT nType);
    bool NotifyChild(HWND hWndChild, LRESULT* pResult);
};

// The procedure of all windows that have an object. For a window without one the message goes to the
// procedure of AfxRegisterSuperWndProc for its class, else to that of the class itself.
AFX_API WNDPROC AfxGetAfxWndProc();

// Names the procedure with which a window continues that has AfxGetAfxWndProc() but no object: for window
// classes that decide window by window whether to make one.
AFX_API void AfxRegisterSuperWndProc(ATOM atomClass, WNDPROC pfnSuper);

// The next window made in this thread gets pWnd as its object before its first message. AfxUnhookWindowCreate
// takes that back and says whether it had been used.
AFX_API void AfxHookWindowCreate(CWnd* pWnd);
AFX_API BOOL AfxUnhookWindowCreate();

// A window class of these properties, registered once; its name lives as long as the process.
AFX_API LPCSTR AfxRegisterWndClass(UINT nClassStyle, HCURSOR hCursor = nullptr,
                                   HBRUSH hbrBackground = nullptr, HICON hIcon = nullptr);

// Sets the text only if it differs, so that nothing is repainted needlessly.
AFX_API void AfxSetWindowText(HWND hWndCtrl, LPCSTR lpszNew);
