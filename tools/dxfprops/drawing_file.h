// A drawing in a file, with the entities that have properties.
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

// For example "layer=WALLS": kind, handle, block, or a property, ignoring case.
struct Condition {
    std::string name, value;
};
// Names of conditions that are not properties.
constexpr char kKind[] = "kind", kHandle[] = "handle", kBlock[] = "block";

// The name of standard output.
constexpr char kStandardOutput[] = "-";

// An entity and its block; null for model space.
struct Found {
    const dxf::Entity* entity;
    const dxf::Block* block;
};

// Returns the entities with properties in order: those of model space, including the attributes of its insertions, then
// those of blocks.
std::vector<Found> AllOf(const dxf::Document& document);

class DrawingFile {
public:
    // Throws ReadError if the file cannot be read.
    explicit DrawingFile(const std::string& file);

    std::string_view Text() const;
    const std::string& Bytes() const { return bytes_; }
    // Replaces the output file, or prints the bytes if the output is kStandardOutput. Does not write the drawing's own
    // file if the bytes are unchanged, and fails if it has been changed meanwhile. Throws FileError and SaveError.
    void Write(const std::string& bytes, const std::string& output) const;

    const dxf::Document& Document() const { return document_; }
    const PropertyTexts& Texts() const { return texts_; }

    // Returns the entities that meet the conditions, in model space unless one names a block. Throws SaveError if there
    // is no such block.
    std::vector<Found> Select(const std::vector<Condition>& where) const;
    // Returns the kinds of all entities there, ignoring other conditions.
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
