// What a record of a drawing is called in messages.
#pragma once

#include <cstdint>
#include <string_view>

#include "drawcore/include/drawcore/dxf_document.h"

namespace dxf {

// Returns the name of the record that begins there, without its line and its block.
RecordName NameOfRecord(std::string_view text, size_t offset);
// Returns the line that begins there, counted from 1.
uint32_t LineAt(std::string_view text, size_t offset);

} // namespace dxf
