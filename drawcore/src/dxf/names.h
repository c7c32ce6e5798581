// Finds named things of a document: layers, line types, text styles, blocks. Names are equal in any case.
#pragma once

#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "drawcore/src/dxf/fold_name.h"
#include "drawcore/src/dxf/text_decoding.h"

namespace dxf {

// Over one list of a Document, which it appends to. Thing has `name`, `stored` and `declared`.
template <class Thing>
class Names {
public:
    Names(std::vector<Thing>& things, const TextDecoder& decoder) : things_(things), decoder_(decoder) {
        for (size_t i = 0; i < things.size(); ++i)
            byName_.emplace(Key(things[i].name), i);
    }

    // Position of the thing of that name, as it is in the file; makes one that is only mentioned if there
    // isn't one.
    size_t Find(std::string_view raw) {
        if (raw == lastRaw_ && !things_.empty()) return last_; // runs of entities lie on one layer
        const size_t known = things_.size();
        last_ = FindUtf8(decoder_.Decode(raw));
        if (last_ == known) Keep(raw, things_[last_]);
        lastRaw_ = raw;
        return last_;
    }

    // The same by a name in UTF-8.
    size_t FindUtf8(const std::string& name) {
        const auto [found, isNew] = byName_.emplace(Key(name), things_.size());
        if (isNew) things_.emplace_back().name = name;
        return found->second;
    }

    // The thing that a table's record declares. Of two records with one name the first keeps it.
    Thing& Declare(std::string_view raw) {
        size_t at = Find(raw);
        if (things_[at].declared) {
            at = things_.size();
            things_.emplace_back();
        }
        things_[at].name = decoder_.Decode(raw);
        Keep(raw, things_[at]);
        things_[at].declared = true;
        return things_[at];
    }

    // The name as the file has it, or would have it.
    std::string Stored(const Thing& thing) const {
        return thing.stored.empty() ? decoder_.Encode(thing.name) : thing.stored;
    }

private:
    // The way back may be another: a file may have names in a code page that are UTF-8 by its version.
    void Keep(std::string_view raw, Thing& thing) const {
        thing.stored = decoder_.Encode(thing.name) == raw ? std::string_view() : raw;
    }

    static std::string Key(std::string_view name) { return FoldName(ToDisplayText(name)); }

    std::vector<Thing>& things_;
    const TextDecoder& decoder_;
    std::unordered_map<std::string, size_t> byName_;
    std::string_view lastRaw_;
    size_t last_ = 0;
};

} // namespace dxf
