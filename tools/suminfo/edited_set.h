// One property-set stream of a document, taken apart, changed and put together again. What isn't touched keeps its
// bytes.
//
// Texts are written in the code page of their section. If that can't represent one, the section turns to UTF-8: its
// code page and all its 8-bit texts and names. Every function throws Failure.
#pragma once

#include <optional>
#include <string>

#include "orlo/propset/inspect/set_image.h"

namespace suminfo {

class EditedSet {
public:
    // The stream's bytes; nothing for a new set. A damaged stream is refused: writing it again would lose what can't be
    // read of it.
    explicit EditedSet(const std::optional<orlo::Bytes>& bytes);

    // Stores a value, or removes the property when it is an empty text. An existing property keeps its kind of text or
    // number; another kind is refused.
    void SetField(const GUID& format, uint32_t id, const std::string& text, uint32_t usualType);
    // The named property of the user-defined section, added or replaced.
    void SetCustom(const std::string& name, orlo::Value value);
    // False if there was none.
    bool Remove(const GUID& format, uint32_t id);
    bool RemoveCustom(const std::string& name);

    const orlo::SetImage& Held() const { return set_; }
    bool Changed() const { return changed_; }
    orlo::Bytes Image() const;

private:
    orlo::ImageSection& Section(const GUID& format);
    void Store(orlo::ImageSection& section, uint32_t id, const orlo::Value& value);

    orlo::SetImage set_;
    bool changed_ = false;
};

} // namespace suminfo
