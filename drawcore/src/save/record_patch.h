// Changes the groups of a record. New groups are formatted like those of the record: line ends, and blanks before codes
// and values.
#pragma once

#include <initializer_list>
#include <string>
#include <vector>

#include "drawcore/src/dxf/entities.h"
#include "drawcore/src/dxf/tag_reader.h"
#include "drawcore/src/dxf/text_decoding.h"
#include "drawcore/src/save/text_patch.h"

namespace dxf {

struct Group {
    int code;
    std::string_view value; // part of the drawing's text
    size_t begin, end;      // including both lines
    int part;               // number of subclass markers before it
    bool attached;          // in braces, in an embedded object, or in extended data
};

class RecordPatch {
public:
    // Reads the record at the offset. Throws ReadError if there is none.
    RecordPatch(TextPatch& patch, TagReader& tags, size_t offset);

    const std::vector<Group>& Groups() const { return groups_; }
    size_t End() const { return end_; } // offset of the next record

    // Groups of all entities: in records with subclass markers, those of the first part.
    bool HasCommon(int code) const { return Find(code, true) != nullptr; }
    void SetCommon(int code, const std::string& value);
    void RemoveCommon(int code);

    // Groups of the kind. A missing group is added after the last of the listed codes that exists, else at the end.
    const Group* Find(int code) const { return Find(code, false); }
    int Integer(int code) const; // 0 if the group is missing
    void Set(int code, const std::string& value, std::initializer_list<int> after = {});
    void Remove(int code);

    void SetValue(const Group& group, const std::string& value);
    void Remove(const Group& group) { patch_.Replace(group.begin, group.end - group.begin, {}); }
    void Insert(size_t at, int code, const std::string& value) { patch_.Insert(at, Lines(code, value)); }
    // Returns the offset after the last of these groups, else the end of the record's own groups.
    size_t OffsetAfter(std::initializer_list<int> codes) const;

    // Replaces the extended data of that application; empty values remove it.
    struct Value {
        int code;
        std::string text;
        bool isStored = false; // the text is encoded as in the file; otherwise it is UTF-8
    };
    void SetExtended(const char* application, const std::vector<Value>& values);

    std::string Lines(int code, const std::string& value) const;

private:
    bool IsCommon(const Group& group) const { return !group.attached && (!hasParts_ || group.part <= 1); }
    bool IsOf(const Group& group, int code, bool common) const;
    const Group* Find(int code, bool common) const;
    void SetAll(int code, const std::string& value, bool common, size_t placeIfMissing);
    void RemoveAll(int code, bool common);
    size_t CommonOffset(int code) const;

    TextPatch& patch_;
    std::vector<Group> groups_; // the first one has code 0
    size_t end_ = 0;
    bool hasParts_ = false;
    bool padded_ = false;
    std::string lineEnd_;
};

// Returns the values of extended data of kApplication as stored.
std::vector<RecordPatch::Value> ExtendedValues(const ExtendedData& extended, const TextDecoder& decoder);

// Returns the shortest text that is parsed back as the same number.
std::string RealText(double value);

} // namespace dxf
