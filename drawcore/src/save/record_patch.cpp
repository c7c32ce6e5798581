// Finds and replaces the groups of a record.
#include "drawcore/src/save/record_patch.h"

#include <algorithm>
#include <charconv>

namespace dxf {

namespace {

// The groups of all entities, in the order in which programs write them.
constexpr int kCommonOrder[] = {5, 330, kSubclass, 67, 410, 8, 6, 62, 370, 48, 60, 420, 430, 440};

} // namespace

std::string RealText(double value) {
    char buffer[32];
    std::string text(buffer, std::to_chars(buffer, buffer + sizeof buffer, value).ptr);
    const size_t exponent = std::min(text.find('e'), text.size());
    if (text.find('.') == text.npos) text.insert(exponent, ".0");
    return text;
}

std::vector<RecordPatch::Value> ExtendedValues(const ExtendedData& isApplication, const TextDecoder& decoder) {
    std::vector<RecordPatch::Value> values;
    for (const ExtendedValue& value : isApplication) {
        values.push_back({kExtendedText, decoder.Encode(value.name), true});
        values.push_back({kExtendedBrace, "{", true});
        for (std::string& piece : decoder.EncodePieces(WriteExtendedText(value.text)))
            values.push_back({kExtendedText, std::move(piece), true});
        for (const double number : value.numbers)
            values.push_back({kExtendedReal, RealText(number), true});
        values.push_back({kExtendedBrace, "}", true});
    }
    return values;
}

RecordPatch::RecordPatch(TextPatch& patch, TagReader& tags, size_t offset) : patch_(patch) {
    const Tag& tag = tags.Seek(offset);
    int part = 0;
    bool braces = false, embedded = false;
    do {
        if (tag.code == kSubclass && !embedded) ++part;
        if (tag.code == kEmbedded) embedded = true;
        const bool opens = tag.code == kGroup && !tag.value.empty() && tag.value[0] == '{';
        braces = braces || opens;
        const bool attached = braces || embedded || tag.code >= kExtended;
        groups_.push_back({tag.code, tag.value, tag.offset, tags.Offset(), part, attached});
        if (tag.Is(kGroup, "}")) braces = false;
        tags.Next();
    } while (!tag.StartsRecord());
    end_ = tag.offset;
    hasParts_ = part > 0;
    const Group& head = groups_[0];
    const std::string_view text = patch.Text();
    padded_ = text[head.begin] == ' ';
    const size_t valueEnd = static_cast<size_t>(head.value.data() + head.value.size() - text.data());
    lineEnd_ = text.substr(valueEnd, head.end - valueEnd);
}

std::string RecordPatch::Lines(int code, const std::string& value) const {
    std::string number = std::to_string(code);
    constexpr size_t kWidth = 3;
    if (padded_ && number.size() < kWidth) number.insert(0, kWidth - number.size(), ' ');
    return number + lineEnd_ + value + lineEnd_;
}

bool RecordPatch::IsOf(const Group& group, int code, bool common) const {
    return group.code == code && !group.attached && (!common || IsCommon(group));
}

const Group* RecordPatch::Find(int code, bool common) const {
    const auto found =
        std::find_if(groups_.rbegin(), groups_.rend(), [&](const Group& group) { return IsOf(group, code, common); });
    return found == groups_.rend() ? nullptr : &*found;
}

int RecordPatch::Integer(int code) const {
    const Group* group = Find(code);
    return group ? Tag{code, group->value}.Integer() : 0;
}

void RecordPatch::SetValue(const Group& group, const std::string& value) {
    if (group.value == value) return;
    std::string text = value;
    const bool aligned = group.value.size() > value.size() && group.value[0] == ' ' && group.code >= 60;
    if (aligned) text.insert(0, group.value.size() - value.size(), ' ');
    patch_.Replace(group.value, std::move(text));
}

void RecordPatch::SetAll(int code, const std::string& value, bool common, size_t placeIfMissing) {
    bool found = false;
    for (const Group& group : groups_) {
        if (!IsOf(group, code, common)) continue;
        SetValue(group, value);
        found = true;
    }
    if (!found) Insert(placeIfMissing, code, value);
}

void RecordPatch::RemoveAll(int code, bool common) {
    for (const Group& group : groups_)
        if (IsOf(group, code, common)) Remove(group);
}

// Some programs write the groups of all entities after the subclass marker of the kind.
void RecordPatch::SetCommon(int code, const std::string& value) {
    SetAll(code, value, HasCommon(code), CommonOffset(code));
}

void RecordPatch::RemoveCommon(int code) {
    RemoveAll(code, HasCommon(code));
}

void RecordPatch::Set(int code, const std::string& value, std::initializer_list<int> after) {
    SetAll(code, value, false, OffsetAfter(after));
}

void RecordPatch::Remove(int code) {
    RemoveAll(code, false);
}

// Returns the offset after the last of the groups that precede it in the usual order.
size_t RecordPatch::CommonOffset(int code) const {
    const auto order = [](int wanted) {
        return std::find(std::begin(kCommonOrder), std::end(kCommonOrder), wanted) - kCommonOrder;
    };
    size_t offset = groups_[0].end;
    for (const Group& group : groups_)
        if (IsCommon(group) ? order(group.code) < order(code) : hasParts_ && group.part == 0) offset = group.end;
    return offset;
}

size_t RecordPatch::OffsetAfter(std::initializer_list<int> codes) const {
    size_t offset = 0, end = groups_[0].end;
    for (const Group& group : groups_) {
        if (!group.attached) end = group.end;
        if (!group.attached && std::find(codes.begin(), codes.end(), group.code) != codes.end()) offset = group.end;
    }
    return offset != 0 ? offset : end;
}

void RecordPatch::SetExtended(const char* application, const std::vector<Value>& values) {
    std::string lines;
    if (!values.empty()) lines = Lines(kApplicationName, application);
    for (const Value& value : values)
        lines += Lines(value.code, value.text);
    size_t begin = end_, end = end_;
    bool isApplication = false;
    for (const Group& group : groups_) {
        if (group.code == kApplicationName) {
            if (isApplication) break;
            isApplication = Tag{group.code, group.value}.Is(kApplicationName, application);
            if (isApplication) begin = group.begin;
        }
        if (isApplication) end = group.end;
    }
    patch_.Replace(begin, end - begin, std::move(lines));
}

} // namespace dxf
