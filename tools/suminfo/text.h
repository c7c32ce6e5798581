// Text on its way in and out: UTF-8 inside, the system's wide text at its edges.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "orlo/propset/code_page.h"
#include "orlo/win/encoded_text.h"

namespace suminfo {

inline std::string ToUtf8(std::wstring_view wide) {
    return orlo::Narrow(wide, CP_UTF8);
}
inline std::wstring ToWide(std::string_view utf8) {
    return orlo::Widen(utf8, CP_UTF8);
}

inline std::filesystem::path PathOf(std::string_view utf8) {
    return std::filesystem::path(ToWide(utf8));
}

// A stream's name as it is shown: the byte 5 of property sets as \005.
std::string StreamNameShown(std::string_view name);
// Without regard to case, as the storage compares names.
bool SameName(std::string_view a, std::string_view b);
// Fit for a terminal, which would obey them: control characters in this form of their number. Ends of lines stay.
std::string Printable(std::string_view utf8, const char* escape = "\\x%02x");
// The same on one line: \n, \t, \x01.
std::string OneLine(std::string_view utf8);
std::string Hex(const uint8_t* bytes, size_t size);
std::string Sha256(const std::vector<uint8_t>& bytes);

} // namespace suminfo
