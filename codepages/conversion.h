// Converts between numbered code pages and UTF-16 in the same way as Windows: with the system's functions on Windows,
// and with Wine's tables on Linux.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace codepages {

constexpr uint16_t kUtf8 = 65001;
constexpr uint16_t kWesternEuropean = 1252;

// Determines how bytes that are not text in the code page are handled.
enum class Invalid { Reject, Replace };

// Returns nothing if the code page is unknown or, with Reject, if the bytes are not text. Code pages 0 to 3 are the
// system's own; on Linux 1252 is used for 0 and 3.
std::optional<std::u16string> ToUtf16(std::string_view bytes, uint16_t codePage, Invalid invalid);

// Returns nothing if the code page is unknown or cannot represent a character.
std::optional<std::string> FromUtf16(std::u16string_view text, uint16_t codePage);

// Compares by the upper case of code units: negative, 0 or positive.
int CompareIgnoringCase(std::u16string_view a, std::u16string_view b);

} // namespace codepages
