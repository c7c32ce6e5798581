// Messages of system errors.

#include "files/file_error.h"

#include <array>

#ifdef _WIN32
#include <windows.h>
#else
#include <cerrno>
#endif

namespace files {
namespace {

struct Wording {
    std::errc reason;
    const char* text;
};
constexpr std::array kWordings = {
    Wording{std::errc::no_such_file_or_directory, "no such file"},
    Wording{std::errc::not_a_directory, "no such folder"},
    Wording{std::errc::permission_denied, "access is denied, or the file is read-only"},
    Wording{std::errc::operation_not_permitted, "access is denied, or the file is read-only"},
    Wording{std::errc::read_only_file_system, "access is denied, or the file is read-only"},
    Wording{std::errc::is_a_directory, "it is a folder"},
    Wording{std::errc::no_space_on_device, "the disk is full"},
    Wording{std::errc::file_too_large, "it exceeds the limit of file sizes"},
    Wording{std::errc::io_error, "the disk is full or failed"},
    Wording{std::errc::device_or_resource_busy, "another program has it open"},
    Wording{std::errc::not_enough_memory, "not enough memory"},
};

// Returns the portable condition for an error.
std::error_condition ConditionOf(const std::error_code& error) {
#ifdef _WIN32
    if (error.category() == std::system_category()) switch (error.value()) {
        case ERROR_INVALID_NAME: // such as one with a wildcard
            return std::errc::no_such_file_or_directory;
        case ERROR_PATH_NOT_FOUND:
        case ERROR_DIRECTORY:
            return std::errc::not_a_directory;
        case ERROR_READ_FAULT:
        case ERROR_WRITE_FAULT:
            return std::errc::io_error;
        default:
            break;
        }
#endif
    return error.default_error_condition();
}

// The message() of std::system_category is in the code page of the system.
std::string MessageOf(const std::error_code& error) {
#ifdef _WIN32
    if (error.category() == std::system_category()) {
        constexpr int kSize = 512;
        wchar_t wide[kSize] = L"";
        char text[3 * kSize] = ""; // three bytes of UTF-8 at most for each 16 bits
        constexpr DWORD kFlags = FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS;
        ::FormatMessageW(kFlags, nullptr, static_cast<DWORD>(error.value()), 0, wide, kSize, nullptr);
        ::WideCharToMultiByte(CP_UTF8, 0, wide, -1, text, sizeof text, nullptr, nullptr);
        return *text != '\0' ? text : "error " + std::to_string(error.value());
    }
#endif
    return error.message();
}

std::string TextOf(const std::error_code& error) {
    const std::error_condition condition = ConditionOf(error);
    for (const Wording& wording : kWordings)
        if (condition == wording.reason) return wording.text;
    return SystemMessage(error);
}

} // namespace

std::string SystemMessage(const std::error_code& error) {
    std::string text = MessageOf(error);
    text.erase(text.find_last_not_of("\r\n. ") + 1);
    return text;
}

FileError::FileError(const std::string& what, std::error_code reason)
    : std::runtime_error(what + ": " + TextOf(reason)), reason_(reason) {}

std::error_code LastError() {
#ifdef _WIN32
    return {static_cast<int>(::GetLastError()), std::system_category()};
#else
    return {errno, std::generic_category()};
#endif
}

void ThrowLastError(const std::string& what) {
    throw FileError(what, LastError());
}

} // namespace files
