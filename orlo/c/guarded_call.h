// Error handling of the C interface: each function returns a result code and stores a message for its thread.
#pragma once

#include <orlo_c.h>

#include <cstring>
#include <functional>
#include <string>

namespace orlo {

// The exception for a call that fails with a certain result code. It never leaves GuardedCall.
struct CallError {
    OrloResult result;
    std::string text;
};

// Converts text from the system's code page, such as a message of the framework, to UTF-8.
std::string SystemTextToUtf8(const std::string& text);

[[noreturn]] void ThrowError(OrloResult result, const char* text);
// Throws CallError with kOrloSystemError (kOrloOutOfMemory for E_OUTOFMEMORY). The text is `what`, a colon and the
// system's message for the error.
[[noreturn]] void ThrowSystemError(long error, const char* what);

// Runs the body of one function. Returns kOrloOk, or the result code for the exception that `work` threw; the message
// is then stored for OrloGetErrorText.
OrloResult GuardedCall(const std::function<void()>& work);

// Returns *pointer. Throws CallError if it is null.
template <class T>
T& RequireNotNull(T* pointer, const char* name) {
    if (pointer == nullptr) ThrowError(kOrloBadArgument, (std::string(name) + " is null").c_str());
    return *pointer;
}

// Runs the body of a function that returns a value through a pointer: stores 0 if `work` throws, else its result.
template <class T, class Work>
OrloResult GuardedResult(T* answer, const char* name, const Work& work) {
    return GuardedCall([&] {
        RequireNotNull(answer, name) = T();
        *answer = work();
    });
}

// Returns *record. Throws CallError if it is null or its `size` is not that of the record in this version.
template <class Record>
Record& RequireRecord(Record* record, const char* name) {
    if (RequireNotNull(record, name).size != sizeof(Record))
        ThrowError(kOrloBadArgument, (std::string(name) + " has a size that this version does not support").c_str());
    return *record;
}

// Returns a copy of a record of this version or an earlier one; members that it lacks are 0. `least` is the size of the
// first version. Throws CallError if the record is null or of another size.
template <class Record>
Record CopyRecord(const Record* record, const char* name, size_t least = sizeof(Record)) {
    const size_t size = RequireNotNull(record, name).size;
    if (size < least || size > sizeof(Record))
        ThrowError(kOrloBadArgument, (std::string(name) + " has a size that this version does not support").c_str());
    Record copy = {};
    std::memcpy(&copy, record, size);
    return copy;
}

} // namespace orlo
