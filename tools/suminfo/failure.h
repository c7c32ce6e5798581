// What a command says when it can't do its work: one line, the file's name before it is added by the caller.
#pragma once

#include <stdexcept>
#include <string>
#include <windows.h>

namespace suminfo {

class Failure : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

// A result of the storage in words, or its number where words are missing.
std::string TextOf(HRESULT result);
[[noreturn]] void Fail(HRESULT result, const std::string& doing);

} // namespace suminfo
