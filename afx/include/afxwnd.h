// CCmdTarget, an object with a message map, and CWnd, an object that represents a window.
//
// The permanent map of a thread connects CWnd objects and windows, from Create, Attach or SubclassWindow until the
// window is destroyed or Detach is called. For a window without an object, FromHandle creates a temporary one, which is
// valid until the current message has been handled.
//
// Exceptions never leave a window procedure: they are passed to CWinThread::ProcessWndProcException.
//
// Strings and structures are the 8-bit ones (LPCREATESTRUCTA), even in a program that defines UNICODE. Members whose
// names are macros in windows.h (GetWindowText) have different names in such a program. They are inline, so that the
// linker does not look for them.
#pragma once

#include <afxgdi.h>
#include <afxmsg.h>

#include <shellapi.h>

class CDataExchange;
class CFrameWnd;
struct CCreateContext;

// The macro in windows.h would give this virtual function a different name in programs that define UNICODE.
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

    // Called when the last reference to the object has been released. Deletes the object.
    virtual void OnFinalRelease();

    // Calls the handler of a command (nCode is CN_COMMAND) or notification or, if pHandlerInfo is not null, stores it
    // there. Returns false if there is no handler.
    virtual BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo);

    // Show and hide the wait cursor. Calls can be nested.
    void BeginWaitCursor();
    void EndWaitCursor();

protected:
    virtual const AFX_MSGMAP* GetMessageMap() const;
};

class AFX_API CWnd : public CCmdTarget {
    DECLARE_DYNCREATE(CWnd)
public:
    CWnd();
    // Destroys the window if it still exists. The derived class receives no messages about that.
    ~CWnd() override;

    HWND m_hWnd;
    HWND GetSafeHwnd() const { return m_hWnd; }

    // ---- Objects and windows
    // Return the object of a window. If the window has none, FromHandle creates a temporary object, and
    // FromHandlePermanent returns null.
    static CWnd* FromHandle(HWND hWnd);
    static CWnd* FromHandlePermanent(HWND hWnd);
    // Attach and detach a window without subclassing it. Attach returns false if hWndNew is null; Detach returns the
    // window.
    BOOL Attach(HWND hWndNew);
    HWND Detach();
    // Attach a window and receive its messages. Return false if the window does not exist or the object already has
    // one.
    BOOL SubclassWindow(HWND hWnd);
    BOOL SubclassDlgItem(UINT nID, CWnd* pParent);
    // Restores the window's procedure, detaches the window and returns it.
    HWND UnsubclassWindow();
    // For compatibility: does nothing and returns TRUE. Controls have a 3D appearance by default.
    BOOL SubclassCtl3d(int nControlType);

    // Creates a child window; WS_CHILD is added. A null class name selects the framework's window class: arrow cursor,
    // double clicks, no background. Returns false if the window cannot be created. Frames have their own Create.
    virtual BOOL Create(LPCSTR lpszClassName, LPCSTR lpszWindowName, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd,
                        UINT nID, CCreateContext* pContext = nullptr);
    BOOL CreateEx(DWORD dwExStyle, LPCSTR lpszClassName, LPCSTR lpszWindowName, DWORD dwStyle, int x, int y, int nWidth,
                  int nHeight, HWND hWndParent, HMENU nIDorHMenu, LPVOID lpParam = nullptr);
    virtual BOOL DestroyWindow();

    // ---- Messages
    LRESULT SendMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const {
        return ::SendMessageA(m_hWnd, message, wParam, lParam);
    }
    BOOL PostMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const {
        return ::PostMessageA(m_hWnd, message, wParam, lParam);
    }
    // Send a message to all child windows and, if bDeep, to their descendants; if bOnlyPerm, only to windows with a
    // permanent object.
    void SendMessageToDescendants(UINT message, WPARAM wParam = 0, LPARAM lParam = 0, BOOL bDeep = TRUE,
                                  BOOL bOnlyPerm = FALSE);
    static void SendMessageToDescendants(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam, BOOL bDeep,
                                         BOOL bOnlyPerm);
    // Called before a message is dispatched. Return TRUE if it was handled.
    virtual BOOL PreTranslateMessage(MSG* pMsg);
    BOOL IsDialogMessage(MSG* pMsg) { return ::IsDialogMessageA(m_hWnd, pMsg); }
    // Calls PreTranslateMessage of the permanent objects from the message's window up to hWndStop.
    static BOOL WalkPreTranslateTree(HWND hWndStop, MSG* pMsg);

    // ---- Modal loop
    // Runs until EndModalLoop. Returns the argument of its first call, or -1 if the window is destroyed.
    int RunModalLoop();
    void EndModalLoop(int nResult);

    // ---- Data exchange
    // Calls DoDataExchange. Returns false if a value is invalid; the user has then been informed.
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
    // Changes the style. If nFlags is not 0, also calls SetWindowPos with these flags, without moving or sizing the
    // window. Returns false if the style was not changed.
    BOOL ModifyStyle(DWORD dwRemove, DWORD dwAdd, UINT nFlags = 0);
    CFont* GetFont() const;
    void SetFont(CFont* pFont, BOOL bRedraw = TRUE);

    // ---- Position and visibility
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
    // Centers the window over pAlternateOwner or, if that is null, over its owner, keeping it completely on the
    // monitor.
    void CenterWindow(CWnd* pAlternateOwner = nullptr);
    BOOL ShowWindow(int nCmdShow) { return ::ShowWindow(m_hWnd, nCmdShow); }
    BOOL IsWindowVisible() const { return ::IsWindowVisible(m_hWnd); }
    BOOL EnableWindow(BOOL bEnable = TRUE) { return ::EnableWindow(m_hWnd, bEnable); }
    BOOL IsWindowEnabled() const { return ::IsWindowEnabled(m_hWnd); }
    void UpdateWindow() { ::UpdateWindow(m_hWnd); }
    void Invalidate(BOOL bErase = TRUE) { ::InvalidateRect(m_hWnd, nullptr, bErase); }
    void InvalidateRect(LPCRECT lpRect, BOOL bErase = TRUE) { ::InvalidateRect(m_hWnd, lpRect, bErase); }

    // ---- Related windows
    CWnd* GetParent() const { return FromHandle(::GetParent(m_hWnd)); }
    // Returns the outermost frame window that contains or owns this one, or null.
    CFrameWnd* GetTopLevelFrame() const;
    // Returns the nearest frame window that contains this one, or null.
    CFrameWnd* GetParentFrame() const;
    virtual BOOL IsFrameWnd() const;
    CWnd* GetDlgItem(int nID) const;
    int GetDlgCtrlID() const { return ::GetDlgCtrlID(m_hWnd); }
    void SetDlgItemText(int nID, LPCSTR lpszString) { ::SetDlgItemTextA(m_hWnd, nID, lpszString); }

    // ---- Input, timers, files
    CWnd* SetFocus() { return FromHandle(::SetFocus(m_hWnd)); }
    static CWnd* GetFocus() { return FromHandle(::GetFocus()); }
    CWnd* SetCapture() { return FromHandle(::SetCapture(m_hWnd)); }
    UINT_PTR SetTimer(UINT_PTR nIDEvent, UINT nElapse) { return ::SetTimer(m_hWnd, nIDEvent, nElapse, nullptr); }
    BOOL KillTimer(UINT_PTR nIDEvent) { return ::KillTimer(m_hWnd, nIDEvent); }
    void DragAcceptFiles(BOOL bAccept = TRUE) { ::DragAcceptFiles(m_hWnd, bAccept); }
    // If lpszCaption is null, the caption is the name of the application.
    int MessageBox(LPCSTR lpszText, LPCSTR lpszCaption = nullptr, UINT nType = MB_OK) {
        return ShowMessage(lpszText, lpszCaption, nType);
    }

    // Destroys the window, which ends with a call of PostNcDestroy. If there is no window, calls PostNcDestroy
    // directly.
    void OnFinalRelease() override;
    // Shows help: sends WM_COMMANDHELP to this window and its parents until one returns non-zero.
    afx_msg void OnHelp();

protected:
    // Returns the address of the variable that contains the window's original procedure. If the variable is null, the
    // system's default procedure is used.
    virtual WNDPROC* GetSuperWndProcAddr();
    // Called before the window is created; can change cs. Return FALSE to cancel.
    virtual BOOL PreCreateWindow(CREATESTRUCTA& cs);
    // Called before the object receives messages of the window.
    virtual void PreSubclassWindow();

    // Handle commands and notifications. Return 0 if not handled.
    virtual BOOL OnCommand(WPARAM wParam, LPARAM lParam);
    virtual BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    virtual LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam);
    virtual BOOL OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    // Calls the window's original procedure.
    virtual LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam);
    // Called for a message that the parent received about this window, such as owner drawing. Return TRUE if handled.
    virtual BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    // Called last, when the window has been destroyed and detached. An object on the heap can delete itself here.
    virtual void PostNcDestroy();
    // Override to exchange data between members and controls; see afxdialog.h.
    virtual void DoDataExchange(CDataExchange* pDX);

    // Passes the current message to DefWindowProc, with its original parameters.
    LRESULT Default();

    // Base implementations for handlers of ON_WM_...; each calls Default.
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

    // Pass owner-draw messages to the permanent object of the control, or call Default if there is no such object.
    afx_msg void OnDrawItem(int nIDCtl, LPDRAWITEMSTRUCT lpDrawItemStruct);
    afx_msg void OnMeasureItem(int nIDCtl, LPMEASUREITEMSTRUCT lpMeasureItemStruct);
    afx_msg int OnCompareItem(int nIDCtl, LPCOMPAREITEMSTRUCT lpCompareItemStruct);
    afx_msg void OnDeleteItem(int nIDCtl, LPDELETEITEMSTRUCT lpDeleteItemStruct);
    afx_msg void OnNcDestroy();

    // Implements DoModal: disables the owner, creates the window with make, runs the loop, and destroys the window.
    template <class Make>
    int RunModal(CWnd* pParentWnd, Make make);
    // Hides the window, enables the owner and ends the loop. A window that is not modal is destroyed.
    void CloseModal(int nResult);
    bool IsModal() const; // false after the loop was ended

    // Returns the position at which CenterWindow places a window of that size, in screen coordinates.
    CPoint GetCenteredPlace(CSize size, const CWnd* pAlternateOwner = nullptr) const;

    DECLARE_MESSAGE_MAP()

private:
    friend class AfxWindowLink;
    // EndModalLoop can be called before RunModalLoop.
    enum class Modal { none, running, ended };
    Modal m_modal;
    int m_nModalResult;
    class AfxModalOwner* m_pModalOwner; // while the window is modal
    WNDPROC m_pfnSuper;
    int ShowMessage(LPCSTR lpszText, LPCSTR lpszCaption, UINT nType);
    bool NotifyChild(HWND hWndChild, LRESULT* pResult);
};

// Returns the window procedure of all windows that have an object. Messages for a window without an object are passed
// to the procedure that AfxRegisterSuperWndProc has registered for the window's class or, if there is none, to the
// procedure of the class.
AFX_API WNDPROC AfxGetAfxWndProc();

// Registers the procedure for windows of a class that have the procedure AfxGetAfxWndProc() but no object. For window
// classes that create an object for only some of their windows.
AFX_API void AfxRegisterSuperWndProc(ATOM atomClass, WNDPROC pfnSuper);

// AfxHookWindowCreate attaches pWnd to the next window that is created on this thread, before its first message.
// AfxUnhookWindowCreate ends this and returns true if a window was created.
AFX_API void AfxHookWindowCreate(CWnd* pWnd);
AFX_API BOOL AfxUnhookWindowCreate();

// Registers a window class, unless one with these properties exists, and returns its name, which is valid until the
// process ends.
AFX_API LPCSTR AfxRegisterWndClass(UINT nClassStyle, HCURSOR hCursor = nullptr, HBRUSH hbrBackground = nullptr,
                                   HICON hIcon = nullptr);

// Sets the text if it is different, so that an unchanged window is not repainted.
AFX_API void AfxSetWindowText(HWND hWndCtrl, LPCSTR lpszNew);
