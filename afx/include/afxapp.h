// The application: its thread, its main window, its resources and messages to the user.
#pragma once

#include <afxwnd.h>

class AFX_API CWinThread : public CCmdTarget {
    DECLARE_DYNAMIC(CWinThread)
public:
    CWinThread();
    ~CWinThread() override;

    CWnd* m_pMainWnd; // when its window is destroyed, Run ends
    virtual CWnd* GetMainWnd();

    virtual BOOL InitInstance();
    virtual int ExitInstance();
    // The message loop, until WM_QUIT; its result is that of ExitInstance.
    virtual int Run();
    // Nothing to do for now; lCount grows from 0. True: wants another call.
    virtual BOOL OnIdle(LONG lCount);
    virtual BOOL PreTranslateMessage(MSG* pMsg);
    // One message; false: it was WM_QUIT.
    BOOL PumpMessage();

    // An exception that a message handler has thrown; the result is the message's. Shows its text, unless the
    // user has been informed. What a window throws while painting itself or its items is shown once.
    virtual LRESULT ProcessWndProcException(CException* e, const MSG* pMsg);

private:
    friend class CWnd;
    bool m_bRunning;
    int m_nExitCode; // of WM_QUIT
};

// The one application object of a program. Its constructor makes it what AfxGetApp and AfxGetThread give.
class AFX_API CWinApp : public CWinThread {
    DECLARE_DYNAMIC(CWinApp)
public:
    // Without a name it is that of the program's file.
    explicit CWinApp(LPCSTR lpszAppName = nullptr);
    ~CWinApp() override;

    HINSTANCE m_hInstance;
    LPCSTR m_lpCmdLine;
    int m_nCmdShow;
    LPCSTR m_pszAppName;

private:
    CString m_strAppName;
};

// A main window. The object is on the heap and goes with its window.
class AFX_API CFrameWnd : public CWnd {
    DECLARE_DYNCREATE(CFrameWnd)
public:
    CFrameWnd();
    ~CFrameWnd() override;

    static const CRect rectDefault; // the system chooses place and size

    // A top-level window; a null class name as in CWnd::Create. False: no window was made.
    BOOL Create(LPCSTR lpszClassName, LPCSTR lpszWindowName, DWORD dwStyle = WS_OVERLAPPEDWINDOW,
                const RECT& rect = rectDefault, CWnd* pParentWnd = nullptr, LPCSTR lpszMenuName = nullptr,
                DWORD dwExStyle = 0, CCreateContext* pContext = nullptr);
    // The same with menu, accelerators and icon of one resource number, window text from the string of that number.
    BOOL LoadFrame(UINT nIDResource, DWORD dwDefaultStyle = WS_OVERLAPPEDWINDOW, CWnd* pParentWnd = nullptr);
    BOOL LoadAccelTable(LPCSTR lpszResourceName);
    HACCEL m_hAccelTable;

    BOOL IsFrameWnd() const override;
    BOOL PreTranslateMessage(MSG* pMsg) override;
    // The frame first, then the application.
    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override;

protected:
    void PostNcDestroy() override;
};

AFX_API CWinThread* AfxGetThread();
AFX_API CWinApp* AfxGetApp();
AFX_API CWnd* AfxGetMainWnd();
AFX_API HINSTANCE AfxGetInstanceHandle();
// The application's name; that of the program's file if there is no application object.
AFX_API LPCSTR AfxGetAppName();

// What a program's WinMain calls: InitInstance, Run, ExitInstance of its application object.
AFX_API int AfxWinMain(HINSTANCE hInstance, HINSTANCE hPrevInstance, LPSTR lpCmdLine, int nCmdShow);

// ---- Resources. Searched in the program, then in the extension modules, the latest first, then in the
// framework.
// The module that has it; the program's own if none has.
AFX_API HINSTANCE AfxFindResourceHandle(LPCSTR lpszName, LPCSTR lpszType);
// The length copied; 0, with an empty buffer, if there is no such string.
AFX_API int AfxLoadString(UINT nIDS, LPSTR lpszBuf, UINT nMaxBuf = 256);

// ---- Messages to the user
// A type without an icon gets the exclamation mark. The result is the button's identifier.
AFX_API int AfxMessageBox(LPCSTR lpszText, UINT nType = MB_OK, UINT nIDHelp = 0);
AFX_API int AfxMessageBox(UINT nIDPrompt, UINT nType = MB_OK, UINT nIDHelp = static_cast<UINT>(-1));
// The string nIDS with its %1 and %2 replaced.
AFX_API void AfxFormatString1(CString& rString, UINT nIDS, LPCSTR lpsz1);
AFX_API void AfxFormatString2(CString& rString, UINT nIDS, LPCSTR lpsz1, LPCSTR lpsz2);
// Part iSubString of a text, the first being 0. False, and rString empty, if there are fewer.
AFX_API BOOL AfxExtractSubString(CString& rString, LPCSTR lpszFullString, int iSubString, char chSep = '\n');
