// Exceptions of handlers that no window procedure is above.
#pragma once

#include <afx.h>

// Called in a catch block: reports the exception that is being handled as one that leaves a message handler, and
// returns what the window procedure then returns.
LRESULT AfxReportCurrentException();

// Returns what the call returns; false if it throws, after the exception has been reported.
template <class Call>
bool AfxGuardedCall(Call call) {
    try {
        return call();
    } catch (...) {
        AfxReportCurrentException();
        return false;
    }
}
