// Handles exceptions of calls that do not come from a window procedure.
#pragma once

#include <afx.h>

// Must be called in a catch block. Reports the current exception as if it had left a message handler, and returns the
// result of the message.
LRESULT AfxReportCurrentException();

// Returns the result of the call. If it throws, reports the exception and returns false.
template <class Call>
bool AfxGuardedCall(Call call) {
    try {
        return call();
    } catch (...) {
        AfxReportCurrentException();
        return false;
    }
}
