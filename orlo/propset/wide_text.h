// The wide text of the system's own calls, from 8-bit text and back. For programs on Windows that link the static library;
// orlo.dll does not export it.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace orlo {

// From text of that code page (0: the system's). Bytes that are not text of it become U+FFFD.
std::wstring ToWide(std::string_view text, uint16_t codePage);

// As UTF-8. Half a surrogate pair becomes U+FFFD.
std::string ToUtf8(std::wstring_view wide);

} // namespace orlo
