// What a record of a drawing is called in messages.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace dxf {

struct RecordName {
    std::string kind;   // "LINE"
    std::string handle; // empty: none
    uint32_t line = 0;  // of the file, counted from 1
    std::string block;  // that it is in; empty: model space

    std::string Text() const; // "LINE 2F (line 1024)", "LINE 3A (line 512, block DOOR)"
};

// Returns the name of the record that begins there, without its line and its block.
RecordName NameOfRecord(std::string_view text, size_t offset);
// Returns the line that begins there, counted from 1.
uint32_t LineAt(std::string_view text, size_t offset);

} // namespace dxf
