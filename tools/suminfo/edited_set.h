// A property-set stream of a document, parsed for editing. Unchanged parts keep their bytes.
//
// Texts are written in the code page of their section. If it cannot represent a text, the section is converted to
// UTF-8: its code page and all its 8-bit texts and names. All functions throw Failure.
#pragma once

#include <optional>
#include <string>

#include "orlo/propset/inspect/set_image.h"

namespace suminfo {

class EditedSet {
public:
    // Parses the bytes; nothing creates a new set. Fails for a damaged stream, because writing it would lose the parts
    // that cannot be read.
    explicit EditedSet(const std::optional<orlo::Bytes>& bytes);

    // Stores a value, or removes the property if the text is empty. An existing property keeps its type of text or
    // number; fails if it has another type.
    void SetField(const GUID& format, uint32_t id, const std::string& text, uint32_t usualType);
    // Adds or replaces a property of the user-defined section.
    void SetCustom(const std::string& name, orlo::Value value);
    // Returns false if there was none.
    bool Remove(const GUID& format, uint32_t id);
    bool RemoveCustom(const std::string& name);

    const orlo::SetImage& Set() const { return set_; }
    bool Changed() const { return changed_; }
    orlo::Bytes Image() const;

private:
    orlo::ImageSection& Section(const GUID& format);
    void Store(orlo::ImageSection& section, uint32_t id, const orlo::Value& value);

    orlo::SetImage set_;
    bool changed_ = false;
};

} // namespace suminfo
