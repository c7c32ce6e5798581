// A drawing in a file with the entities that have properties.
#pragma once

#include <filesystem>
#include <set>
#include <string>
#include <vector>

#include "drawcore/src/dxf/document.h"
#include "drawcore/src/dxf/record_name.h"
#include "drawcore/src/dxf/tag_reader.h"
#include "tools/dxfprops/property_texts.h"

namespace dxfprops {

// "layer=WALLS": kind, handle, block, or a property. Case does not count.
struct Condition {
    std::string name, value;
};
// Names of conditions that are no properties.
constexpr char kKind[] = "kind", kHandle[] = "handle", kBlock[] = "block";

// The name of standard output.
constexpr char kStandardOutput[] = "-";

// An entity and the block that it is in; null: model space.
struct Found {
    const dxf::Entity* entity;
    const dxf::Block* block;
};

// Entities with properties: of model space, with the attributes of its insertions, and then of the blocks. In their
// order.
std::vector<Found> AllOf(const dxf::Document& document);

class DrawingFile {
public:
    // ReadError if it can't be read.
    explicit DrawingFile(const std::string& file);

    std::string_view Text() const;
    const std::string& Bytes() const { return bytes_; }
    // Replaces the output file, or prints the bytes if the output is kStandardOutput. The drawing's own file is left
    // alone if the bytes are its own, and refused if it has been changed meanwhile. Throws FileError and SaveError.
    void Write(const std::string& bytes, const std::string& output) const;

    const dxf::Document& Document() const { return document_; }
    const PropertyTexts& Texts() const { return texts_; }

    // Those that meet the conditions: of model space, unless one names a block. SaveError if there is no such block.
    std::vector<Found> Select(const std::vector<Condition>& where) const;
    // The kinds of all that are there, whatever the other conditions say.
    std::set<std::string> KindsAround(const std::vector<Condition>& where) const;
    std::vector<Found> All() const { return AllOf(document_); }
    dxf::RecordName NameOf(const Found& found) const;
    dxf::Look LookOf(const dxf::Entity& entity) const { return dxf::LookOf(document_, entity); }

private:
    std::vector<Found> Around(const std::vector<Condition>& where) const;
    bool Meets(const Found& found, const std::vector<Condition>& where) const;

    const std::filesystem::path path_;
    const std::string bytes_;
    const dxf::Document document_;
    const PropertyTexts texts_;
};

} // namespace dxfprops
