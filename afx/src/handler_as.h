// Converts a handler from a message map to a function with its own signature.
#pragma once

#include <afxmsg.h>

template <class Handler>
Handler HandlerAs(AFX_PMSG pfn) {
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wcast-function-type"
    return reinterpret_cast<Handler>(pfn);
#pragma GCC diagnostic pop
}
