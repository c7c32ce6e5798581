// The groups of one record of a drawing, and changes of them. New groups are written as the record's own are: line
// ends, blanks in front of codes and values.
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
    std::string_view value; // of the drawing's text
    size_t begin, end;      // with both lines
    int part;               // how many subclass markers come before it
    bool attached;          // between braces, of an embedded object, or extended data
};

class RecordPatch {
public:
    // The record that begins there. Throws ReadError if none does.
    RecordPatch(TextPatch& patch, TagReader& tags, size_t offset);

    const std::vector<Group>& Groups() const { return groups_; }
    size_t End() const { return end_; } // where the next record begins

    // What all entities have: with subclass markers, the groups of the first part.
    bool HasCommon(int code) const { return Find(code, true) != nullptr; }
    void SetCommon(int code, const std::string& value);
    void RemoveCommon(int code);

    // What the kind of record has. A group that is missing goes after the last of the others, or to the end.
    const Group* Find(int code) const { return Find(code, false); }
    void Set(int code, const std::string& value, std::initializer_list<int> behind = {});
    void Remove(int code);

    void SetValue(const Group& group, const std::string& value);
    void Remove(const Group& group) { patch_.Replace(group.begin, group.end - group.begin, {}); }
    void Insert(size_t at, int code, const std::string& value) { patch_.Insert(at, Lines(code, value)); }
    // Where a group after the last of these begins, or else one at the end of the record's own groups.
    size_t PlaceBehind(std::initializer_list<int> codes) const;

    // In place of the extended data of that application; empty values remove it.
    struct Value {
        int code;
        std::string text;
        bool isStored = false; // the text is as the file has it; else UTF-8, where that makes a difference
    };
    void SetExtended(const char* application, const std::vector<Value>& values);

    std::string Lines(int code, const std::string& value) const;

private:
    bool IsCommon(const Group& group) const { return !group.attached && (!hasParts_ || group.part <= 1); }
    bool IsOf(const Group& group, int code, bool common) const;
    const Group* Find(int code, bool common) const;
    void SetAll(int code, const std::string& value, bool common, size_t placeIfMissing);
    void RemoveAll(int code, bool common);
    size_t CommonPlace(int code) const;

    TextPatch& patch_;
    std::vector<Group> groups_; // the first one has code 0
    size_t end_ = 0;
    bool hasParts_ = false;
    bool padded_ = false;
    std::string lineEnd_;
};

// The values of extended data of kApplication, as they are stored.
std::vector<RecordPatch::Value> ExtendedValues(const OwnData& own, const TextDecoder& decoder);

// A number as a drawing has it: the shortest text that is read back to the same.
std::string RealText(double value);

} // namespace dxf
