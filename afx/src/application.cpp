// CWinThread and CWinApp: message loop and application object.

#include "modal.h"
#include "thread_state.h"

#include <afxapp.h>
#include <afxres.h>

IMPLEMENT_DYNAMIC(CWinThread, CCmdTarget)
IMPLEMENT_DYNAMIC(CWinApp, CWinThread)

namespace {

CWinApp* g_app = nullptr;

// Returns the file name without folder and extension.
CString ProgramName() {
    char path[MAX_PATH] = "";
    ::GetModuleFileNameA(nullptr, path, MAX_PATH);
    CString name(path);
    name = name.Mid(name.ReverseFind('\\') + 1);
    const int dot = name.ReverseFind('.');
    return dot > 0 ? name.Left(dot) : name;
}

} // namespace

CWinThread::CWinThread() : m_pMainWnd(nullptr), m_bRunning(false), m_nExitCode(0) {}
CWinThread::~CWinThread() = default;

CWnd* CWinThread::GetMainWnd() {
    return m_pMainWnd;
}
BOOL CWinThread::InitInstance() {
    return FALSE;
}
int CWinThread::ExitInstance() {
    return m_nExitCode;
}
BOOL CWinThread::OnIdle(LONG) {
    return FALSE;
}
BOOL CWinThread::PreTranslateMessage(MSG* pMsg) {
    return CWnd::WalkPreTranslateTree(nullptr, pMsg);
}
BOOL CWinThread::PumpMessage() {
    return AfxPumpOneMessage(m_nExitCode);
}

int CWinThread::Run() {
    m_bRunning = true;
    do {
        MSG message;
        for (LONG count = 0; !::PeekMessageA(&message, nullptr, 0, 0, PM_NOREMOVE) && OnIdle(count); ++count) {
        }
    } while (PumpMessage());
    m_bRunning = false;
    return ExitInstance();
}

LRESULT CWinThread::ProcessWndProcException(CException* e, const MSG* pMsg) {
    // Otherwise the message would be sent again at once.
    if (pMsg->message == WM_PAINT) ::ValidateRect(pMsg->hwnd, nullptr);
    AfxThreadState& state = AfxThreadState::Get();
    // Closing the message box would repaint the window and so cause the next exception.
    const bool painting = pMsg->message == WM_PAINT || pMsg->message == WM_DRAWITEM;
    const bool again = painting && !state.paintFailures.insert(pMsg->hwnd).second;
    if (!again && !state.reporting && !e->IsKindOf(RUNTIME_CLASS(CUserException))) {
        state.reporting = true;
        e->ReportError(MB_ICONEXCLAMATION);
        state.reporting = false;
    }
    return pMsg->message == WM_CREATE ? -1 : 0;
}

CWinApp::CWinApp(LPCSTR lpszAppName)
    : m_hInstance(::GetModuleHandleA(nullptr)), m_lpCmdLine(""), m_nCmdShow(SW_SHOWNORMAL),
      m_strAppName(lpszAppName != nullptr ? CString(lpszAppName) : ProgramName()) {
    m_pszAppName = m_strAppName;
    g_app = this;
    AfxThreadState::Get().thread = this;
}

CWinApp::~CWinApp() {
    if (g_app == this) g_app = nullptr;
    AfxThreadState& state = AfxThreadState::Get();
    if (state.thread == this) state.thread = nullptr;
}

CWinThread* AfxGetThread() {
    return AfxThreadState::Get().thread;
}
CWinApp* AfxGetApp() {
    return g_app;
}

CWnd* AfxGetMainWnd() {
    CWinThread* thread = AfxGetThread();
    return thread != nullptr ? thread->GetMainWnd() : nullptr;
}

HINSTANCE AfxGetInstanceHandle() {
    return ::GetModuleHandleA(nullptr);
}

LPCSTR AfxGetAppName() {
    if (g_app != nullptr) return g_app->m_pszAppName;
    static const CString name = ProgramName();
    return name;
}

int AfxWinMain(HINSTANCE hInstance, HINSTANCE, LPSTR lpCmdLine, int nCmdShow) {
    CWinApp* app = AfxGetApp();
    app->m_hInstance = hInstance;
    app->m_lpCmdLine = lpCmdLine;
    app->m_nCmdShow = nCmdShow;
    return app->InitInstance() ? app->Run() : app->ExitInstance();
}
