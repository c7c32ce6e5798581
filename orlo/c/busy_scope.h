// Marks the time in which the code of a sheet is interrupted by a callback of the host or by a message box. The sheet
// must not be changed meanwhile.
#pragma once

#include "orlo/c/guarded_call.h"

namespace orlo {

class BusyScope {
public:
    BusyScope() { ++s_count; }
    ~BusyScope() { --s_count; }
    BusyScope(const BusyScope&) = delete;
    BusyScope& operator=(const BusyScope&) = delete;

    // Returns whether there is such an object on this thread.
    static bool IsBusy() { return s_count > 0; }

private:
    static inline thread_local int s_count = 0;
};

template <class Callback, class... Arguments>
auto CallHost(Callback callback, Arguments... arguments) {
    const BusyScope busy;
    return callback(arguments...);
}

// Throws Refusal during a callback or a message box.
inline void RequireNotBusy() {
    if (BusyScope::IsBusy()) ThrowError(kOrloBusy, "a callback or a message box of a sheet has not returned yet");
}

} // namespace orlo
