// FileError: an operation on a file failed. The reason has the same wording on every system.
#pragma once

#include <stdexcept>
#include <string>
#include <system_error>

namespace files {

class FileError : public std::runtime_error {
public:
    // The text is "what: reason".
    FileError(const std::string& what, std::error_code reason);
    FileError(const std::string& what, std::errc reason) : FileError(what, std::make_error_code(reason)) {}
    explicit FileError(const std::string& text) : std::runtime_error(text) {}

    // Without an error if the text says all.
    const std::error_code& Reason() const { return reason_; }

private:
    std::error_code reason_;
};

// The error of the calling thread's last system call.
std::error_code LastError();
// Throws FileError with that error.
[[noreturn]] void ThrowLastError(const std::string& what);

} // namespace files
