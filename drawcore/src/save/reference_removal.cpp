// Rules for each kind of record that refers to others.
#include "drawcore/src/save/reference_removal.h"

#include <algorithm>
#include <optional>

#include "drawcore/src/dxf/record_name.h"

namespace dxf {

namespace {

constexpr int kExtendedHandle = 1005;
constexpr int kHardOwner = 360, kSoftOwner = 350;

bool IsReference(int code) {
    return (code >= 320 && code < 370) || (code >= 390 && code < 400) || code == 480 || code == 481 ||
           code == kExtendedHandle;
}

// Returns whether the reference is an item of a list, which can be shorter.
bool IsListItem(std::string_view kind, int code) {
    if (kind == "VIEWPORT") return code == 331 || code == 341;
    return (kind == "GROUP" && code == 340) || (kind == "IDBUFFER" && code == 330);
}

// Normalizes a handle: without blanks and leading zeros, uppercase. Returns an empty string for the null handle.
std::string KeyOf(std::string_view value) {
    std::string key;
    for (const char c : value)
        if (c != ' ' && c != '\t' && (c != '0' || !key.empty()))
            key += c >= 'a' && c <= 'f' ? static_cast<char>(c - 'a' + 'A') : c;
    return key;
}

} // namespace

// One pass over the records of a drawing.
class ReferenceRemoval::Scan {
public:
    explicit Scan(ReferenceRemoval& of) : of_(of), text_(of.patch_.Text()), tags_(text_) {}

    // Returns whether further records must be removed.
    bool Run() {
        bool inHeader = false;
        tags_.Next();
        while (!tags_.Current().Is(0, "EOF")) {
            const size_t begin = tags_.Current().offset;
            const auto removed = of_.ranges_.find(begin);
            if (removed != of_.ranges_.end()) {
                tags_.Seek(removed->second.end);
                continue;
            }
            if (tags_.Current().Is(0, "SECTION")) {
                section_ = tags_.Next().Trimmed();
                inHeader = section_ == "HEADER" || section_ == "CLASSES";
                tags_.SkipRecord();
            } else if (inHeader) {
                tags_.SkipRecord();
            } else {
                Visit(begin);
            }
        }
        return grows_;
    }

private:
    void Visit(size_t begin) {
        const RecordPatch record(of_.patch_, tags_, begin);
        groups_ = &record.Groups();
        kind_ = Tag{0, (*groups_)[0].value}.Trimmed();
        const std::string handle = OwnHandle();
        // Of two records with the same handle, one remains that others refer to.
        if (of_.handles_.erase(handle) > 0) grows_ = true;
        const auto owned = of_.owned_.find(handle);
        if (!handle.empty() && owned != of_.owned_.end())
            return RemoveRecord(record.End(), owned->second, of_.edits_.size());
        const size_t before = of_.edits_.size();
        const std::optional<Loss> loss = DropReferences();
        if (!loss) return;
        const bool isObject = section_ == "OBJECTS" && (kind_ == "DIMASSOC" || IsOwnedBy(loss->objectOffset));
        if (loss->isLastMember || isObject) return RemoveRecord(record.End(), loss->objectOffset, before);
        of_.blocking_.push_back(
            {loss->objectOffset, "cannot be removed because " + NameOfRecord(text_, begin).Text() + " refers to it"});
    }

    std::string OwnHandle() const {
        const auto handle = std::find_if(groups_->begin(), groups_->end(), [](const Group& group) {
            return group.code == kHandle || group.code == kDimensionStyleHandle;
        });
        return handle == groups_->end() ? "" : KeyOf(handle->value);
    }

    // A reference to a removed record without which the current record is meaningless.
    struct Loss {
        size_t objectOffset; // identifies the removed record
        bool isLastMember;   // of a group
    };

    // Drops the record's references to removed records, up to the first loss.
    std::optional<Loss> DropReferences() {
        size_t lostMembers = 0;
        for (size_t i = 1; i < groups_->size(); ++i) {
            const Group& group = (*groups_)[i];
            if (!IsReference(group.code)) continue;
            const auto found = of_.handles_.find(KeyOf(group.value));
            if (found == of_.handles_.end()) continue;
            const bool isDropped = Drop(i);
            const bool isLastMember = kind_ == "GROUP" && !group.attached && ++lostMembers == CountMembers();
            if (!isDropped || isLastMember) return Loss{found->second, isLastMember};
        }
        return std::nullopt;
    }

    // Counts the members of a group.
    size_t CountMembers() const {
        return static_cast<size_t>(std::count_if(
            groups_->begin(), groups_->end(), [](const Group& group) { return group.code == 340 && !group.attached; }));
    }

    bool IsOwnedBy(size_t objectOffset) const {
        for (const Group& group : *groups_) {
            if (group.code == kSubclass) break;
            if (group.code != kOwner || group.attached) continue;
            const auto found = of_.handles_.find(KeyOf(group.value));
            return found != of_.handles_.end() && found->second == objectOffset;
        }
        return false;
    }

    // Removes the record up to `end`, discarding all but the first `edits` edits.
    void RemoveRecord(size_t end, size_t objectOffset, size_t edits) {
        const size_t begin = (*groups_)[0].begin;
        of_.edits_.resize(edits);
        of_.edits_.push_back({begin, end - begin, {}});
        of_.ranges_.emplace(begin, Range{end, objectOffset});
        of_.RecordHandles(begin, {end, objectOffset});
        grows_ = true;
        tags_.Seek(end);
    }

    void Remove(const Group& group) { of_.edits_.push_back({group.begin, group.end - group.begin, {}}); }
    void Put(const Group& group, const std::string& value) {
        of_.edits_.push_back({of_.patch_.OffsetOf(group.value), group.value.size(), value});
    }

    // Removes the reference. Returns false if the record is meaningless without it.
    bool Drop(size_t at) {
        const Group& group = (*groups_)[at];
        if (group.code == kExtendedHandle) return Put(group, "0"), true;
        if (group.attached) return DropFromBraces(at), true;
        const bool isOwner = group.part == 0 && group.code == kOwner;
        return !isOwner && DropFromRecord(at);
    }

    bool DropFromRecord(size_t at) {
        const Group& group = (*groups_)[at];
        const int code = group.code;
        if (IsListItem(kind_, code)) return Remove(group), true;
        if (kind_ == "XRECORD") return Put(group, "0"), true;
        if (kind_ == "HATCH" && code == 330) return DropBoundary(at), true;
        if (kind_ == "LEADER" && code == 340) return DropAnnotation(group), true;
        const bool isEntry = code == kHardOwner || code == kSoftOwner;
        if (kind_.find("DICTIONARY") != kind_.npos && isEntry && (*groups_)[at - 1].code == 3)
            return Remove((*groups_)[at - 1]), Remove(group), true;
        if (kind_ == "SORTENTSTABLE" && code == 331 && at + 1 < groups_->size())
            return Remove(group), Remove((*groups_)[at + 1]), true;
        return false;
    }

    // Removes braces that have become empty.
    void DropFromBraces(size_t at) {
        const bool isAlone =
            (*groups_)[at - 1].code == kGroup && at + 1 < groups_->size() && (*groups_)[at + 1].code == kGroup;
        if (isAlone) Remove((*groups_)[at - 1]);
        Remove((*groups_)[at]);
        if (isAlone) Remove((*groups_)[at + 1]);
    }

    // Removes a boundary from the path; the hatch is then no longer associative.
    void DropBoundary(size_t at) {
        Remove((*groups_)[at]);
        for (size_t i = at; i-- > 0;) {
            const Group& group = (*groups_)[i];
            if (group.code != 97) continue;
            const int removed = ++boundaries_[group.begin];
            const auto isSameCount = [&](const Edit& edit) { return edit.at == of_.patch_.OffsetOf(group.value); };
            of_.edits_.erase(std::remove_if(of_.edits_.begin(), of_.edits_.end(), isSameCount), of_.edits_.end());
            Put(group, std::to_string(Tag{97, group.value}.Integer() - removed));
            break;
        }
        for (const Group& group : *groups_) {
            if (group.code == 91) break;
            if (group.code == 71 && Tag{71, group.value}.Flag() && associative_.insert(group.begin).second)
                Put(group, "0");
        }
    }

    void DropAnnotation(const Group& reference) {
        constexpr char kNone[] = "3";
        Put(reference, "0");
        for (const Group& group : *groups_)
            if (group.code == 73 && !group.attached) Put(group, kNone);
    }

    ReferenceRemoval& of_;
    const std::string_view text_;
    TagReader tags_;
    std::string section_;
    std::string_view kind_;
    const std::vector<Group>* groups_ = nullptr;
    std::map<size_t, int> boundaries_; // number of removed boundaries, by the count that they belong to
    std::set<size_t> associative_;
    bool grows_ = false;
};

void ReferenceRemoval::Add(size_t begin, size_t end, size_t objectOffset) {
    ranges_.emplace(begin, Range{end, objectOffset});
    RecordHandles(begin, {end, objectOffset});
}

void ReferenceRemoval::RecordHandles(size_t begin, const Range& range) {
    TagReader tags(patch_.Text());
    for (size_t at = begin; at < range.end;) {
        const RecordPatch record(patch_, tags, at);
        bool hasHandle = false;
        for (const Group& group : record.Groups()) {
            const std::string key = KeyOf(group.value);
            if (group.code == kHandle && !hasHandle && !key.empty()) handles_.emplace(key, range.objectOffset);
            hasHandle = hasHandle || group.code == kHandle;
            if (group.code == kHardOwner && !key.empty()) owned_.emplace(key, range.objectOffset);
        }
        at = record.End();
    }
}

void ReferenceRemoval::Run() {
    if (handles_.empty()) return;
    do {
        // Records removed in an earlier pass are skipped; their edits remain.
        edits_.erase(
            std::remove_if(edits_.begin(), edits_.end(), [&](const Edit& edit) { return ranges_.count(edit.at) == 0; }),
            edits_.end());
        blocking_.clear();
    } while (Scan(*this).Run());
    if (!blocking_.empty()) return;
    for (Edit& edit : edits_)
        patch_.Replace(edit.at, edit.length, std::move(edit.with));
}

} // namespace dxf
