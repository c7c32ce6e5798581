// The state's place in each thread, and the library's entry, which frees it when a thread ends.

#include "thread_state.h"

namespace {

// Not thread_local: objects of the program may still ask for the state while the process ends, after those
// are gone.
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
