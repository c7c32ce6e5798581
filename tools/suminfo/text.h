// Converts UTF-8 texts for display and comparison.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace suminfo {

// Unpaired surrogates become U+FFFD.
std::string Utf8(std::u16string text);
// Returns a stream's name for display, with the byte 5 of property sets as \005.
std::string StreamNameShown(std::string_view name);
std::string Hex(const uint8_t* bytes, size_t size);
std::string Sha256(const std::vector<uint8_t>& bytes);

} // namespace suminfo
