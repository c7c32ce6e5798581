// Texts between UTF-8, UTF-16 and the 8-bit code page of the system, in which the host's calls return and take texts.
#pragma once

#include <string>
#include <string_view>

namespace drawcore {

std::wstring Utf16FromUtf8(std::string_view text);
std::wstring Utf16FromCodePage(std::string_view text);
std::string Utf8FromUtf16(std::wstring_view text);
std::string Utf8FromCodePage(std::string_view text);

// A character that the code page lacks becomes its number, as in "\U+4E57": texts that differ remain different.
std::string CodePageFromUtf8(std::string_view text);

} // namespace drawcore
