// Application, main thread and frame window; resources and message boxes.
#pragma once

#include <afxwnd.h>

class AFX_API CWinThread : public CCmdTarget {
    DECLARE_DYNAMIC(CWinThread)
public:
    CWinThread();
    ~CWinThread() override;

    CWnd* m_pMainWnd; // Run ends when its window is destroyed
    virtual CWnd* GetMainWnd();

    // Called by AfxWinMain before Run, which is skipped if it returns false.
    virtual BOOL InitInstance();
    virtual int ExitInstance();
    // Runs the message loop until WM_QUIT and returns the result of ExitInstance.
    virtual int Run();
    // Called while the message queue is empty; lCount counts up from 0. Return TRUE to be called again.
    virtual BOOL OnIdle(LONG lCount);
    // Called before a message is dispatched. Return TRUE if it was handled.
    virtual BOOL PreTranslateMessage(MSG* pMsg);
    // Waits for a message and dispatches it. Returns false if the message is WM_QUIT.
    BOOL PumpMessage();

    // Called for an exception that a message handler has thrown; returns the result of the message. Shows the
    // exception's message unless it is a CUserException. If a window throws exceptions while it is painted, the message
    // is shown only once.
    virtual LRESULT ProcessWndProcException(CException* e, const MSG* pMsg);

private:
    friend class CWnd;
    bool m_bRunning;
    int m_nExitCode; // wParam of WM_QUIT
};

// The application object, of which a program has only one. AfxGetApp and AfxGetThread return it.
class AFX_API CWinApp : public CWinThread {
    DECLARE_DYNAMIC(CWinApp)
public:
    // If lpszAppName is null, the application is named after the program file.
    explicit CWinApp(LPCSTR lpszAppName = nullptr);
    ~CWinApp() override;

    HINSTANCE m_hInstance;
    LPCSTR m_lpCmdLine;
    int m_nCmdShow;
    LPCSTR m_pszAppName;

private:
    CString m_strAppName;
};

// A main window. The object must be on the heap; it deletes itself when its window is destroyed.
class AFX_API CFrameWnd : public CWnd {
    DECLARE_DYNCREATE(CFrameWnd)
public:
    CFrameWnd();
    ~CFrameWnd() override;

    static const CRect rectDefault; // the system determines position and size

    // Creates a top-level window. For a null class name see CWnd::Create. Returns false if the window cannot be
    // created.
    BOOL Create(LPCSTR lpszClassName, LPCSTR lpszWindowName, DWORD dwStyle = WS_OVERLAPPEDWINDOW,
                const RECT& rect = rectDefault, CWnd* pParentWnd = nullptr, LPCSTR lpszMenuName = nullptr,
                DWORD dwExStyle = 0, CCreateContext* pContext = nullptr);
    // Creates a top-level window whose menu, accelerators, icon and title are the resources with that number.
    BOOL LoadFrame(UINT nIDResource, DWORD dwDefaultStyle = WS_OVERLAPPEDWINDOW, CWnd* pParentWnd = nullptr);
    // Loads the accelerators. Returns false if they do not exist.
    BOOL LoadAccelTable(LPCSTR lpszResourceName);
    HACCEL m_hAccelTable;

    BOOL IsFrameWnd() const override;
    BOOL PreTranslateMessage(MSG* pMsg) override;
    // Routes a command to the frame, then to the application.
    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override;

protected:
    void PostNcDestroy() override;
};

// Return null if there is no such object. AfxGetThread also returns null on threads other than the application's.
AFX_API CWinThread* AfxGetThread();
AFX_API CWinApp* AfxGetApp();
AFX_API CWnd* AfxGetMainWnd();
AFX_API HINSTANCE AfxGetInstanceHandle();
// Returns the name of the application, or that of the program file if there is no application object.
AFX_API LPCSTR AfxGetAppName();

// Implements WinMain: calls InitInstance, Run and ExitInstance of the application object.
AFX_API int AfxWinMain(HINSTANCE hInstance, HINSTANCE hPrevInstance, LPSTR lpCmdLine, int nCmdShow);

// ---- Resources
// They are searched for in the program, then in the extension modules, starting with the one added last, then in the
// framework.

// Returns the module that contains the resource, or the program if no module does.
AFX_API HINSTANCE AfxFindResourceHandle(LPCSTR lpszName, LPCSTR lpszType);
// Copies a string and returns its length. If it does not exist, returns 0 and stores an empty string.
AFX_API int AfxLoadString(UINT nIDS, LPSTR lpszBuf, UINT nMaxBuf = 256);

// ---- Messages to the user

// Show a message box and return the identifier of the button that was pressed. If nType specifies no icon, the
// exclamation mark is shown.
AFX_API int AfxMessageBox(LPCSTR lpszText, UINT nType = MB_OK, UINT nIDHelp = 0);
AFX_API int AfxMessageBox(UINT nIDPrompt, UINT nType = MB_OK, UINT nIDHelp = static_cast<UINT>(-1));
// Load the string nIDS and replace %1 and %2 in it.
AFX_API void AfxFormatString1(CString& rString, UINT nIDS, LPCSTR lpsz1);
AFX_API void AfxFormatString2(CString& rString, UINT nIDS, LPCSTR lpsz1, LPCSTR lpsz2);
// Extracts part iSubString (from 0) of a string. Returns false, and empties rString, if there are fewer parts.
AFX_API BOOL AfxExtractSubString(CString& rString, LPCSTR lpszFullString, int iSubString, char chSep = '\n');
