// Failures of the system's storage.
#pragma once

#include <string>
#include <windows.h>

namespace suminfo {

// Throws what failed, with the result in words, or its number where words are missing.
[[noreturn]] void Fail(HRESULT result, const std::string& doing);

} // namespace suminfo
