// Sets up the framework around a sheet and cleans up afterward.

#include "orlo/c/framework_scope.h"

#include "orlo/c/guarded_call.h"
#include "orlo/controls/combo_control.h"

namespace orlo {
LRESULT MainWindow::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_COMMAND && HIWORD(wParam) == kControlReady && lParam != 0) {
        m_onReady(LOWORD(wParam), reinterpret_cast<HWND>(lParam));
        return 0;
    }
    // After Return in an edit field, a control sets the focus to the main window, which is hidden here and returns it.
    if (message == WM_SETFOCUS && wParam != 0) {
        ::SetFocus(reinterpret_cast<HWND>(wParam));
        return 0;
    }
    return CWnd::WindowProc(message, wParam, lParam);
}

std::shared_ptr<FrameworkScope> FrameworkScope::OfThread(const ControlReady& onReady) {
    thread_local std::weak_ptr<FrameworkScope> current;
    std::shared_ptr<FrameworkScope> scope = current.lock();
    if (!scope) current = scope = std::make_shared<FrameworkScope>(onReady);
    return scope;
}

FrameworkScope::FrameworkScope(ControlReady onReady) : m_main(std::move(onReady)) {
    if (AfxGetThread() == nullptr && AfxGetApp() != nullptr)
        ThrowError(kOrloBadThread, "the framework is running on another thread");
    if (AfxGetThread() == nullptr) m_application.emplace();
    m_previousMain = AfxGetThread()->m_pMainWnd;
    if (!m_main.CreateEx(0, AfxRegisterWndClass(0), "", WS_POPUP, 0, 0, 0, 0, nullptr, nullptr))
        ThrowSystemError(static_cast<long>(::GetLastError()), "cannot create the main window for the controls");
    AfxGetThread()->m_pMainWnd = &m_main;
}

FrameworkScope::~FrameworkScope() {
    AfxGetThread()->m_pMainWnd = m_previousMain; // m_main destroys its window
}

OwnerObject::OwnerObject(HWND owner) {
    if (owner == nullptr) return;
    if (!::IsWindow(owner)) ThrowError(kOrloBadArgument, "owner is not a window");
    if (::GetWindowThreadProcessId(owner, nullptr) != ::GetCurrentThreadId())
        ThrowError(kOrloBadThread, "owner is a window of another thread");
    m_owner = CWnd::FromHandlePermanent(owner);
    if (m_owner == nullptr && m_object.Attach(owner)) m_owner = &m_object;
}

OwnerObject::~OwnerObject() {
    if (m_object.m_hWnd != nullptr) m_object.Detach();
}

} // namespace orlo
