// Storage of the state for each thread, controls by their identifiers, and DllMain, which frees the state when a thread
// ends.

#include "thread_state.h"

#include <new>

namespace {

// Not thread_local: objects of the program can still use the state while the process ends, after thread_local objects
// have been destroyed.
const DWORD kSlot = ::TlsAlloc();

constexpr std::size_t kMaxItems = 1000;

} // namespace

// A control found earlier may have been deleted, or its handle may belong to another window. Returns null if memory
// runs out.
HWND* AfxDialogItems::At(HWND dialog, int nID) {
    if (m_found.size() >= kMaxItems) m_found.clear();
    try {
        HWND& found = m_found[{dialog, nID}];
        if (found != nullptr && (::GetDlgCtrlID(found) != nID || ::GetParent(found) != dialog)) found = nullptr;
        return &found;
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}

HWND AfxDialogItems::Find(HWND dialog, int nID) {
    HWND* found = At(dialog, nID);
    if (found == nullptr) return ::GetDlgItem(dialog, nID);
    if (*found == nullptr) *found = ::GetDlgItem(dialog, nID);
    return *found;
}

void AfxDialogItems::Note(HWND control) {
    HWND* found = At(::GetParent(control), ::GetDlgCtrlID(control));
    if (found != nullptr && *found == nullptr) *found = control;
}

AfxThreadState& AfxThreadState::Get() {
    auto* state = static_cast<AfxThreadState*>(::TlsGetValue(kSlot));
    if (state == nullptr) {
        state = new AfxThreadState;
        ::TlsSetValue(kSlot, state);
    }
    return *state;
}

extern "C" BOOL WINAPI DllMain(HINSTANCE, DWORD reason, LPVOID) {
    if (reason == DLL_THREAD_DETACH) {
        delete static_cast<AfxThreadState*>(::TlsGetValue(kSlot));
        ::TlsSetValue(kSlot, nullptr);
    }
    return TRUE;
}
