// Conversion of text between a code page and wide characters. Header only, also for programs.
#pragma once

#include <string>
#include <string_view>
#include <windows.h>

namespace orlo {

// Returns the text as wide characters.
inline std::wstring Widen(std::string_view text, UINT codePage) {
    const int size = static_cast<int>(text.size());
    const int needed = ::MultiByteToWideChar(codePage, 0, text.data(), size, nullptr, 0);
    std::wstring wide(static_cast<size_t>(needed), L'\0');
    ::MultiByteToWideChar(codePage, 0, text.data(), size, wide.data(), needed);
    return wide;
}

// Returns the text in the code page. The system replaces characters that cannot be represented, mostly by a question
// mark.
inline std::string Narrow(std::wstring_view text, UINT codePage) {
    const int size = static_cast<int>(text.size());
    const int needed = ::WideCharToMultiByte(codePage, 0, text.data(), size, nullptr, 0, nullptr, nullptr);
    std::string narrow(static_cast<size_t>(needed), '\0');
    ::WideCharToMultiByte(codePage, 0, text.data(), size, narrow.data(), needed, nullptr, nullptr);
    return narrow;
}

} // namespace orlo
