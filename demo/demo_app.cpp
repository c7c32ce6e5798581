// The demo's application object.

#include "demo/demo_app.h"

#include "demo/tour/tour.h"
#include "demo/viewer/main_frame.h"
#include "demo/viewer/settings.h"
#include "drawcore/application.h"
#include "orlo/entry/entry.h"

IMPLEMENT_DYNAMIC(CDemoApp, CWinApp)

CDemoApp::CDemoApp(const DemoOptions& options) : CWinApp("Orlo Demo"), m_options(options) {}

std::string ProgramFolder() {
    char path[MAX_PATH] = "";
    ::GetModuleFileNameA(nullptr, path, sizeof path);
    const std::string program(path);
    return program.substr(0, program.find_last_of('\\') + 1);
}

BOOL CDemoApp::InitInstance() {
    ::PropPageInit();
    ::AppSetINIFileName((ProgramFolder() + "demo.ini").c_str());

    if (!m_options.tourFolder.empty()) { // as on a user's first start
        Settings::UseKey(L"Software\\Orlo\\Demo Tour");
        Settings::DeleteAll();
    }

    auto* frame = new CMainFrame;
    if (!frame->Create()) return FALSE;
    m_pMainWnd = frame;
    frame->ShowFirst(m_nCmdShow);
    frame->UpdateWindow();
    if (m_options.tourFolder.empty() && !m_options.drawing.empty()) frame->Open(m_options.drawing);
    return TRUE;
}

int CDemoApp::Run() {
    if (m_options.tourFolder.empty()) return CWinApp::Run();
    auto* frame = static_cast<CMainFrame*>(m_pMainWnd);
    const bool played = Tour(*frame, m_options.tourFolder).Play(m_options.drawing);
    frame->DestroyWindow();
    return ExitInstance() != 0 || !played;
}
