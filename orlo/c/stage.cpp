// The framework set up around a sheet, and taken away again.

#include "orlo/c/stage.h"

#include "orlo/c/answer.h"
#include "orlo/controls/combo_control.h"

namespace orlo {
namespace {

void CheckThread(HWND owner) {
    if (AfxGetThread() == nullptr && AfxGetApp() != nullptr)
        Refuse(kOrloBadThread, "the framework runs on another thread");
    if (owner == nullptr) return;
    if (!::IsWindow(owner)) Refuse(kOrloBadArgument, "the owner is no window");
    if (::GetWindowThreadProcessId(owner, nullptr) != ::GetCurrentThreadId())
        Refuse(kOrloBadThread, "the owner is a window of another thread");
}

} // namespace

LRESULT MainWindow::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_COMMAND && HIWORD(wParam) == kControlReady && lParam != 0) {
        m_announced(LOWORD(wParam), reinterpret_cast<HWND>(lParam));
        return 0;
    }
    // A control that is done with its field hands the focus on to the main window; this one has no use for it.
    if (message == WM_SETFOCUS && wParam != 0) {
        ::SetFocus(reinterpret_cast<HWND>(wParam));
        return 0;
    }
    return CWnd::WindowProc(message, wParam, lParam);
}

Stage::Stage(HWND owner, Announced announced) : m_main(std::move(announced)), m_owner(nullptr) {
    CheckThread(owner);
    if (AfxGetThread() == nullptr) m_application.emplace();
    m_mainBefore = AfxGetThread()->m_pMainWnd;
    if (!m_main.CreateEx(0, AfxRegisterWndClass(0), "", WS_POPUP, 0, 0, 0, 0, nullptr, nullptr))
        RefuseBySystem(static_cast<long>(::GetLastError()), "no window can be made");
    AfxGetThread()->m_pMainWnd = &m_main;
    if (owner == nullptr) return;
    m_owner = CWnd::FromHandlePermanent(owner);
    if (m_owner == nullptr && m_ownerObject.Attach(owner)) m_owner = &m_ownerObject;
}

Stage::~Stage() {
    if (m_ownerObject.m_hWnd != nullptr) m_ownerObject.Detach();
    AfxGetThread()->m_pMainWnd = m_mainBefore; // the window of m_main goes with it
}

} // namespace orlo
