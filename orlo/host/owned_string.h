// The owner of a string that the host makes. C++ only; no window header.
#pragma once

#include <utility>

#include "orlo/host/memory.h"

namespace orlo::host {

// A string of the host's making, or null.
class String {
public:
    String() = default;
    ~String() { ::BStringNULL(&text_); }
    String(String&& other) noexcept : text_(std::exchange(other.text_, nullptr)) {}
    String(const String&) = delete;
    String& operator=(const String&) = delete;

    const char* Get() const { return text_; }
    const char* OrEmpty() const { return text_ ? text_ : ""; }
    // For a call of the host that makes a string; the host releases an earlier one.
    char** Variable() { return &text_; }

private:
    char* text_ = nullptr;
};

} // namespace orlo::host
