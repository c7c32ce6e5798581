// Storage of the state for each thread, and DllMain, which frees it when a thread ends.

#include "thread_state.h"

namespace {

// Not thread_local: objects of the program can still use the state while the process ends, after thread_local objects
// have been destroyed.
const DWORD kSlot = ::TlsAlloc();

} // namespace

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
