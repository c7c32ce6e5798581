// Finds named objects of a document: layers, line types, text styles, blocks. Names are compared ignoring case.
#pragma once

#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "drawcore/src/dxf/fold_name.h"
#include "drawcore/src/dxf/text_decoding.h"

namespace dxf {

// Accesses one list of a Document and appends to it. Object has `name`, `stored` and `declared`.
template <class Object>
class Names {
public:
    Names(std::vector<Object>& objects, const TextDecoder& decoder) : objects_(objects), decoder_(decoder) {
        for (size_t i = 0; i < objects.size(); ++i)
            byName_.emplace(Key(objects[i].name), i);
    }

    // Returns the index of the object with that name, as stored in the file; adds an undeclared one if there is none.
    size_t Find(std::string_view raw) {
        if (raw == lastRaw_ && !objects_.empty()) return last_; // consecutive entities are often on the same layer
        const size_t known = objects_.size();
        last_ = FindUtf8(decoder_.Decode(raw));
        if (last_ == known) SetStored(raw, objects_[last_]);
        lastRaw_ = raw;
        return last_;
    }

    // Does the same for a UTF-8 name.
    size_t FindUtf8(const std::string& name) {
        const auto [found, isNew] = byName_.emplace(Key(name), objects_.size());
        if (isNew) objects_.emplace_back().name = name;
        return found->second;
    }

    // Returns the object that a record of a table declares. The first of two records with the same name is used.
    Object& Declare(std::string_view raw) {
        size_t at = Find(raw);
        if (objects_[at].declared) {
            at = objects_.size();
            objects_.emplace_back();
        }
        objects_[at].name = decoder_.Decode(raw);
        SetStored(raw, objects_[at]);
        objects_[at].declared = true;
        return objects_[at];
    }

    // Returns the name as stored, or as it would be stored.
    std::string Stored(const Object& object) const {
        return object.stored.empty() ? decoder_.Encode(object.name) : object.stored;
    }

private:
    // Encoding may result in other bytes: a file may have names in a code page although its version requires UTF-8.
    void SetStored(std::string_view raw, Object& object) const {
        object.stored = decoder_.Encode(object.name) == raw ? std::string_view() : raw;
    }

    static std::string Key(std::string_view name) { return FoldName(ToDisplayText(name)); }

    std::vector<Object>& objects_;
    const TextDecoder& decoder_;
    std::unordered_map<std::string, size_t> byName_;
    std::string_view lastRaw_;
    size_t last_ = 0;
};

} // namespace dxf
