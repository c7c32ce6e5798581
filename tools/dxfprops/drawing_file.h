// A drawing in a file with the entities that have properties.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "drawcore/src/dxf/document.h"
#include "drawcore/src/dxf/tag_reader.h"
#include "tools/dxfprops/property_texts.h"

namespace dxfprops {

// "layer=WALLS": kind, layer, handle, or a property. Case does not count.
struct Condition {
    std::string name, value;
};

// An entity as it is named in messages.
struct EntityName {
    std::string kind;   // "LINE"
    std::string handle; // empty: none
    uint32_t line = 0;  // of the file

    std::string Text() const; // "LINE 2F (line 1024)"
};

class DrawingFile {
public:
    // ReadError if it can't be read.
    explicit DrawingFile(const std::string& file);

    std::string_view Text() const;
    const std::string& Bytes() const { return bytes_; }
    const dxf::Document& Document() const { return document_; }
    const PropertyTexts& Texts() const { return texts_; }

    // All entities of model space and the attributes of its insertions that meet the conditions, in their order.
    std::vector<const dxf::Entity*> Select(const std::vector<Condition>& where) const;
    EntityName NameOf(const dxf::Entity& entity) const;
    dxf::Look LookOf(const dxf::Entity& entity) const { return dxf::LookOf(document_, entity); }

private:
    bool Meets(const dxf::Entity& entity, const std::vector<Condition>& where) const;

    const std::string bytes_;
    const dxf::Document document_;
    const PropertyTexts texts_;
};

} // namespace dxfprops
