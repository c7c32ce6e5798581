// Returns kind, handle and line of a record.
#include "drawcore/src/dxf/record_name.h"

#include "drawcore/src/dxf/tag_reader.h"

namespace dxf {

std::string RecordName::Text() const {
    return kind + (handle.empty() ? "" : " " + handle) + " (line " + std::to_string(line) +
           (block.empty() ? "" : ", block " + block) + ")";
}

namespace {

uint32_t LineAt(std::string_view text, size_t offset) {
    uint32_t line = 1;
    for (size_t at = 0; at < offset; ++at)
        if (text[at] == '\n' || (text[at] == '\r' && text[at + 1] != '\n')) ++line;
    return line;
}

} // namespace

RecordName NameOfRecord(std::string_view text, size_t offset, uint32_t line) {
    TagReader tags(text);
    const Tag& tag = tags.Seek(offset);
    RecordName name;
    name.kind = tag.Trimmed();
    name.line = line != 0 ? line : LineAt(text, offset);
    while (!tags.Next().StartsRecord() && tag.code != kSubclass)
        if (tag.code == kHandle) name.handle = tag.Trimmed();
    return name;
}

} // namespace dxf
