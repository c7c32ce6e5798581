// File names in their encodings.

#include "demo/viewer/file_name.h"

#include <windows.h>

namespace {

std::string Narrow(UINT codePage, const wchar_t* text) {
    const int size = ::WideCharToMultiByte(codePage, 0, text, -1, nullptr, 0, nullptr, nullptr);
    std::string narrow(static_cast<size_t>(size), '\0');
    ::WideCharToMultiByte(codePage, 0, text, -1, &narrow[0], size, nullptr, nullptr);
    narrow.resize(static_cast<size_t>(size) - 1); // without the NUL
    return narrow;
}

std::wstring Widen(UINT codePage, const char* text) {
    const int size = ::MultiByteToWideChar(codePage, 0, text, -1, nullptr, 0);
    std::wstring wide(static_cast<size_t>(size), L'\0');
    ::MultiByteToWideChar(codePage, 0, text, -1, &wide[0], size);
    wide.resize(static_cast<size_t>(size) - 1);
    return wide;
}

} // namespace

std::string Utf8(const wchar_t* text) {
    return Narrow(CP_UTF8, text);
}

std::wstring Wide(const std::string& utf8) {
    return Widen(CP_UTF8, utf8.c_str());
}

std::string Utf8FromSystem(const char* text) {
    return Utf8(Widen(CP_ACP, text).c_str());
}

std::string SystemText(const std::string& utf8) {
    return Narrow(CP_ACP, Wide(utf8).c_str());
}
