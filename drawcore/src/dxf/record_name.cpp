// Returns kind, handle and line of a record.
#include "drawcore/src/dxf/record_name.h"

#include "drawcore/src/dxf/tag_reader.h"

namespace dxf {

std::string RecordName::Text() const {
    return kind + (handle.empty() ? "" : " " + handle) + " (line " + std::to_string(line) +
           (block.empty() ? "" : ", block " + block) + ")";
}

RecordName NameOfRecord(std::string_view text, size_t offset) {
    constexpr int kHandleCode = 5;
    const Progress silent;
    TagReader tags(text, silent);
    const Tag& tag = tags.Seek(offset);
    RecordName name;
    name.kind = tag.Trimmed();
    while (!tags.Next().StartsRecord() && tag.code != kSubclass)
        if (tag.code == kHandleCode) name.handle = tag.Trimmed();
    return name;
}

uint32_t LineAt(std::string_view text, size_t offset) {
    uint32_t line = 1;
    for (size_t at = 0; at < offset; ++at)
        if (text[at] == '\n' || (text[at] == '\r' && text[at + 1] != '\n')) ++line;
    return line;
}

} // namespace dxf
