// FileError: a failed file operation. The wording is the same on every system.
#pragma once

#include <stdexcept>
#include <string>
#include <system_error>

namespace files {

class FileError : public std::runtime_error {
public:
    // The message is "what: reason".
    FileError(const std::string& what, std::error_code reason);
    FileError(const std::string& what, std::errc reason) : FileError(what, std::make_error_code(reason)) {}
    explicit FileError(const std::string& text) : std::runtime_error(text) {}

    // Returns the system's error, or none if the message is complete without it.
    const std::error_code& Reason() const { return reason_; }

private:
    std::error_code reason_;
};

// Returns the system's message for an error, in UTF-8, without a period at its end.
std::string SystemMessage(const std::error_code& error);
// Returns the error of the calling thread's last system call.
std::error_code LastError();
// Throws a FileError with the error of the calling thread's last system call.
[[noreturn]] void ThrowLastError(const std::string& what);

} // namespace files
