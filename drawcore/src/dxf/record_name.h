// The name of a record in messages.
#pragma once

#include <cstdint>
#include <string_view>

#include "drawcore/include/drawcore/dxf_document.h"

namespace dxf {

// Returns the name of the record at the offset, without its line and block.
RecordName NameOfRecord(std::string_view text, size_t offset);
// Returns the line at the offset, counted from 1.
uint32_t LineAt(std::string_view text, size_t offset);

} // namespace dxf
