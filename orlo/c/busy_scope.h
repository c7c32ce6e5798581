// Marks the time in which the code of a sheet is interrupted by a callback of the host. The sheet must not be changed
// meanwhile.
#pragma once

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

} // namespace orlo
