// Names of code pages in drawings.
#pragma once

#include <cstdint>
#include <string_view>

namespace dxf {

// Returns the number of a code page that can be converted; names ("ANSI_1252", "dos850", "gb2312") ignore case.
// Unknown names: Windows 1252.
uint16_t CodePageNumber(std::string_view name);

} // namespace dxf
