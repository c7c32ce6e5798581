// The name of a record in messages.
#pragma once

#include <cstdint>
#include <string_view>

#include "drawcore/include/drawcore/dxf_document.h"

namespace dxf {

// Returns the name of the record at the offset, without its block. The line is counted unless it is given.
RecordName NameOfRecord(std::string_view text, size_t offset, uint32_t line = 0);

} // namespace dxf
