// Converts exceptions to result codes and stores the message of the last one for each thread.

#include "orlo/c/guarded_call.h"

#include <afxwin.h>

#include <algorithm>
#include <cstring>
#include <iterator>
#include <new>

#include "files/file_error.h"
#include "orlo/win/encoded_text.h"

namespace orlo {
namespace {

std::string& LastText() {
    thread_local std::string text;
    return text;
}

OrloResult Failed(OrloResult result, const char* text) noexcept {
    try {
        LastText() = text;
    } catch (const std::bad_alloc&) {
        LastText().clear();
    }
    return result;
}

// The framework throws exceptions by pointer.
OrloResult Failed(CException* exception) noexcept {
    char text[512] = "";
    exception->GetErrorMessage(text, sizeof text);
    exception->Delete();
    if (text[0] == '\0') return Failed(kOrloFailed, "the framework reported an error without a message");
    try {
        return Failed(kOrloFailed, SystemTextToUtf8(text).c_str());
    } catch (const std::bad_alloc&) {
        return Failed(kOrloFailed, "");
    }
}

} // namespace

std::string SystemTextToUtf8(const std::string& text) {
    return Narrow(Widen(text, CP_ACP), CP_UTF8);
}

void ThrowError(OrloResult result, const char* text) {
    throw CallError{result, text};
}

void ThrowSystemError(long error, const char* what) {
    const std::string text = files::SystemMessage({static_cast<int>(error), std::system_category()});
    throw CallError{error == E_OUTOFMEMORY ? kOrloOutOfMemory : kOrloSystemError, std::string(what) + ": " + text};
}

OrloResult GuardedCall(const std::function<void()>& work) {
    try {
        work();
        return kOrloOk;
    } catch (const CallError& error) {
        return Failed(error.result, error.text.c_str());
    } catch (CException* exception) {
        return Failed(exception);
    } catch (const std::bad_alloc&) {
        return Failed(kOrloOutOfMemory, "out of memory");
    } catch (const std::exception& exception) {
        return Failed(kOrloFailed, exception.what());
    } catch (...) {
        return Failed(kOrloFailed, "the host threw an exception of an unknown type");
    }
}

} // namespace orlo

uint32_t ORLO_CALL OrloGetVersion(void) {
    return ORLO_VERSION;
}

const char* ORLO_CALL OrloGetResultName(OrloResult result) {
    constexpr const char* kNames[] = {
        "kOrloOk",          "kOrloBadArgument", "kOrloBadHandle", "kOrloBadThread",    "kOrloBufferTooSmall",
        "kOrloNotFound",    "kOrloWrongType",   "kOrloDamaged",   "kOrloNotEncodable", "kOrloSystemError",
        "kOrloOutOfMemory", "kOrloFailed",      "kOrloChanged",   "kOrloInvalidInput", "kOrloBusy"};
    static_assert(std::size(kNames) == kOrloBusy + 1);
    const auto number = static_cast<size_t>(result);
    return number < std::size(kNames) ? kNames[number] : "unknown result";
}

size_t ORLO_CALL OrloGetErrorText(char* buffer, size_t size) {
    const std::string& text = orlo::LastText();
    if (buffer != nullptr && size > 0) {
        const size_t copied = std::min(text.size(), size - 1);
        std::memcpy(buffer, text.data(), copied);
        buffer[copied] = '\0';
    }
    return text.size() + 1;
}
