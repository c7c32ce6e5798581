// Converts 8-bit text in a numbered code page to UTF-8 and 16-bit text, and back. Never guesses an encoding.
#pragma once

#include <algorithm>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "orlo/export.h"

namespace orlo {

constexpr uint32_t kCodePageId = 1;       // the property that stores the section's code page
constexpr uint16_t kCodePageUtf16 = 1200; // "8-bit" texts in such a section are 16-bit characters
constexpr uint16_t kCodePageUtf8 = 65001;
constexpr uint16_t kUsualCodePage = 1252; // for a section without a code page

// Returns the text as UTF-8, or nothing if the code page is unknown or the bytes are not text in it. 1200 interprets
// the bytes as 16-bit characters; 0 is the system's own code page (1252 if there is none).
ORLO_API std::optional<std::string> CodePageToUtf8(std::string_view text, uint16_t codePage);

// Returns true if the text is known to have the same bytes in the code page and in UTF-8.
inline bool IsPlainText(std::string_view text, uint16_t codePage) {
    const bool isOfWindows = codePage == kCodePageUtf8 || codePage == 874 || codePage == 932 || codePage == 936 ||
                             codePage == 949 || codePage == 950 || (codePage >= 1250 && codePage <= 1258);
    return isOfWindows && std::all_of(text.begin(), text.end(), [](char c) { return (c & 0x80) == 0; });
}

// Returns true if two UTF-8 names differ at most in case, the way storages and dictionaries compare names.
ORLO_API bool IsSameName(std::string_view a, std::string_view b);
// Compares names by the upper case of their code units: negative, 0 or positive, as storages order names of one length.
int CompareNames(std::u16string_view a, std::u16string_view b);

// Returns the text in that code page, or nothing if it cannot represent every character.
ORLO_API std::optional<std::string> Utf8ToCodePage(std::string_view utf8, uint16_t codePage);

} // namespace orlo
