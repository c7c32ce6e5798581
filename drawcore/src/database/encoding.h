// Converts text between UTF-8, UTF-16 and the system's 8-bit code page, which the host's functions use.
#pragma once

#include <string>
#include <string_view>

namespace drawcore {

std::wstring Utf16FromUtf8(std::string_view text);
std::wstring Utf16FromCodePage(std::string_view text);
std::string Utf8FromUtf16(std::wstring_view text);
std::string Utf8FromCodePage(std::string_view text);

// A character that the code page cannot represent becomes its number, such as "\U+4E57", so that different texts remain
// different.
std::string CodePageFromUtf8(std::string_view text);

} // namespace drawcore
