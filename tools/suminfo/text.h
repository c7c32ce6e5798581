// Texts, in UTF-8, made fit to be shown or compared.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace suminfo {

// Halves of characters become U+FFFD.
std::string Utf8(std::u16string text);
// A stream's name as it is shown: the byte 5 of property sets as \005.
std::string StreamNameShown(std::string_view name);
// Fit for a terminal, which would obey them: control characters in this form of their number. Ends of lines stay.
std::string Printable(std::string_view utf8, const char* escape = "\\x%02x");
// The same on one line: \n, \t, \x01.
std::string OneLine(std::string_view utf8);
std::string Hex(const uint8_t* bytes, size_t size);
std::string Sha256(const std::vector<uint8_t>& bytes);

} // namespace suminfo
