// Code pages: 8-bit text of a numbered code page to UTF-8 and to 16-bit text, and back. Never guesses
// at a text.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "orlo/export.h"

namespace orlo {

constexpr uint32_t kCodePageId = 1;       // the property of a section that names its code page
constexpr uint16_t kCodePageUtf16 = 1200; // "8-bit" texts of such a section are 16-bit characters
constexpr uint16_t kCodePageUtf8 = 65001;
constexpr uint16_t kUsualCodePage = 1252; // of a section that names none

// The text as UTF-8; nothing if the code page is unknown here or the bytes are not text in it. 1200 takes the
// bytes as 16-bit characters; 0 stands for the system's own code page (1252 where there is none).
ORLO_API std::optional<std::string> CodePageToUtf8(std::string_view text, uint16_t codePage);

// True for a text whose bytes are the same in that code page and in UTF-8, known without a conversion.
inline bool IsPlainText(std::string_view text, uint16_t codePage) {
    const bool isOfWindows = codePage == kCodePageUtf8 || codePage == 874 || codePage == 932 || codePage == 936 ||
                             codePage == 949 || codePage == 950 || (codePage >= 1250 && codePage <= 1258);
    return isOfWindows && std::all_of(text.begin(), text.end(), [](char c) { return (c & 0x80) == 0; });
}

// Returns true if two names in UTF-8 differ in case at the most, as storages and dictionaries compare names.
ORLO_API bool IsSameName(std::string_view a, std::string_view b);

// The text in that code page; nothing if it can't represent every character.
ORLO_API std::optional<std::string> Utf8ToCodePage(std::string_view utf8, uint16_t codePage);

} // namespace orlo
