// The window procedure of all windows that have an object, and the hook that attaches a new window to its object before
// its first message.

#include "guarded_call.h"
#include "thread_state.h"
#include "window_link.h"

#include <afxapp.h>

#include <algorithm>
#include <exception>
#include <utility>
#include <vector>

namespace {

using SuperWndProcs = std::vector<std::pair<ATOM, WNDPROC>>;

SuperWndProcs& RegisteredSuperWndProcs() {
    static SuperWndProcs procs;
    return procs;
}

WNDPROC ProcedureWithoutObject(HWND hWnd) {
    const auto atom = static_cast<ATOM>(::GetClassLongPtrA(hWnd, GCW_ATOM));
    for (const auto& [registered, proc] : RegisteredSuperWndProcs()) {
        if (registered == atom) return proc;
    }
    const auto proc = reinterpret_cast<WNDPROC>(::GetClassLongPtrA(hWnd, GCLP_WNDPROC));
    return proc != nullptr && proc != AfxGetAfxWndProc() ? proc : ::DefWindowProcA;
}

// Guard that stores the current message for Default.
class CurrentMessage {
public:
    CurrentMessage(AfxThreadState& state, HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam)
        : m_state(state), m_before(state.lastMessage) {
        state.lastMessage = MSG();
        state.lastMessage.hwnd = hWnd;
        state.lastMessage.message = message;
        state.lastMessage.wParam = wParam;
        state.lastMessage.lParam = lParam;
        ++state.procDepth;
    }
    ~CurrentMessage() {
        m_state.lastMessage = m_before;
        --m_state.procDepth;
    }
    CurrentMessage(const CurrentMessage&) = delete;
    CurrentMessage& operator=(const CurrentMessage&) = delete;

private:
    AfxThreadState& m_state;
    MSG m_before;
};

// Wraps an exception that is not a CException, so that all exceptions are reported in the same way.
class UnexpectedException : public CException {
public:
    // The text must outlive the object, because there may be no memory for a copy.
    explicit UnexpectedException(LPCSTR text) : CException(FALSE), m_text(text) {}
    BOOL GetErrorMessage(LPSTR lpszError, UINT nMaxError, UINT*) override {
        ::lstrcpynA(lpszError, m_text, static_cast<int>(nMaxError));
        return *m_text != '\0';
    }

private:
    LPCSTR m_text;
};

LRESULT ProcessException(CException& e) {
    AfxThreadState& state = AfxThreadState::Get();
    const MSG message = state.lastMessage;
    CWinThread plain;
    CWinThread* thread = state.thread != nullptr ? state.thread : &plain;
    return thread->ProcessWndProcException(&e, &message);
}

LRESULT CallWindow(CWnd* wnd, UINT message, WPARAM wParam, LPARAM lParam) {
    try {
        return AfxWindowLink::Call(wnd, message, wParam, lParam);
    } catch (...) {
        return AfxReportCurrentException();
    }
}

LRESULT CALLBACK AfxWndProc(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam) {
    AfxThreadState& state = AfxThreadState::Get();
    const auto found = state.windows.find(hWnd);
    if (found == state.windows.end()) {
        return ::CallWindowProcA(ProcedureWithoutObject(hWnd), hWnd, message, wParam, lParam);
    }
    CWnd* wnd = found->second;
    if (state.procDepth > 0) {
        const CurrentMessage current(state, hWnd, message, wParam, lParam);
        return CallWindow(wnd, message, wParam, lParam);
    }
    const AfxTempScope scope(state);
    const CurrentMessage current(state, hWnd, message, wParam, lParam);
    return CallWindow(wnd, message, wParam, lParam);
}

LRESULT CALLBACK CreateHook(int code, WPARAM wParam, LPARAM lParam) {
    AfxThreadState& state = AfxThreadState::Get();
    HHOOK hook = state.createHook;
    if (code == HCBT_CREATEWND && state.windowInCreation != nullptr) {
        CWnd* wnd = std::exchange(state.windowInCreation, nullptr);
        // Children of the new window are not attached.
        ::UnhookWindowsHookEx(std::exchange(state.createHook, nullptr));
        AfxWindowLink::Subclass(wnd, reinterpret_cast<HWND>(wParam));
    }
    return ::CallNextHookEx(hook, code, wParam, lParam);
}

} // namespace

LRESULT AfxReportCurrentException() {
    try {
        throw;
    } catch (CException* e) {
        const LRESULT result = ProcessException(*e);
        e->Delete();
        return result;
    } catch (const std::exception& e) {
        UnexpectedException unexpected(e.what());
        return ProcessException(unexpected);
    } catch (...) {
        UnexpectedException unexpected("");
        return ProcessException(unexpected);
    }
}

WNDPROC AfxGetAfxWndProc() {
    return AfxWndProc;
}

void AfxRegisterSuperWndProc(ATOM atomClass, WNDPROC pfnSuper) {
    SuperWndProcs& procs = RegisteredSuperWndProcs();
    const auto found =
        std::find_if(procs.begin(), procs.end(), [=](const auto& entry) { return entry.first == atomClass; });
    if (found != procs.end()) {
        found->second = pfnSuper;
    } else {
        procs.emplace_back(atomClass, pfnSuper);
    }
}

void AfxWindowLink::Subclass(CWnd* wnd, HWND hWnd) {
    wnd->Attach(hWnd);
    wnd->PreSubclassWindow();
    const WNDPROC before = reinterpret_cast<WNDPROC>(
        ::SetWindowLongPtrA(hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(AfxGetAfxWndProc())));
    WNDPROC* super = wnd->GetSuperWndProcAddr();
    if (*super == nullptr) *super = before != AfxGetAfxWndProc() ? before : ProcedureWithoutObject(hWnd);
}

void AfxHookWindowCreate(CWnd* pWnd) {
    AfxThreadState& state = AfxThreadState::Get();
    ASSERT(state.windowInCreation == nullptr);
    state.windowInCreation = pWnd;
    state.createHook = ::SetWindowsHookExA(WH_CBT, CreateHook, nullptr, ::GetCurrentThreadId());
    if (state.createHook == nullptr) {
        state.windowInCreation = nullptr;
        AfxThrowResourceException();
    }
}

BOOL AfxUnhookWindowCreate() {
    AfxThreadState& state = AfxThreadState::Get();
    if (state.createHook != nullptr) ::UnhookWindowsHookEx(std::exchange(state.createHook, nullptr));
    return std::exchange(state.windowInCreation, nullptr) == nullptr;
}
