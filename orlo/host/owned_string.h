// Owns a string that the host created. C++ only; no window header.
#pragma once

#include <utility>

#include "orlo/host/memory.h"

namespace orlo::host {

// Owns a string that the host created with PropGet, or null. The destructor frees it with BStringNULL.
class String {
public:
    String() = default;
    ~String() { ::BStringNULL(&text_); }
    String(String&& other) noexcept : text_(std::exchange(other.text_, nullptr)) {}
    String(const String&) = delete;
    String& operator=(const String&) = delete;

    const char* Get() const { return text_; }
    const char* OrEmpty() const { return text_ ? text_ : ""; }
    // Returns the variable to pass to PropGet, which frees the previous string, if any, before it stores a new one.
    char** Variable() { return &text_; }

private:
    char* text_ = nullptr;
};

} // namespace orlo::host
