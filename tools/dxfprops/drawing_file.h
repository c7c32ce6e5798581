// A drawing in a file, and conditions that select its entities.
#pragma once

#include <filesystem>
#include <set>
#include <string>
#include <vector>

#include "drawcore/dxf_document.h"

namespace dxfprops {

// For example "layer=WALLS": kind, handle, block, or a property, ignoring case.
struct Condition {
    std::string name, value;
};
// Names of conditions that are not properties.
constexpr char kKind[] = "kind", kHandle[] = "handle", kBlock[] = "block";

// The name of standard output.
constexpr char kStandardOutput[] = "-";

class DrawingFile : public dxf::DocumentReader {
public:
    // Throws ReadError if the file cannot be read.
    explicit DrawingFile(const std::string& file);

    // Replaces the output file, or prints the bytes if the output is kStandardOutput. Does not write the drawing's own
    // file if the bytes are unchanged, and fails if it has been changed meanwhile. Throws FileError and SaveError.
    void Write(const std::string& bytes, const std::string& output) const;

    // Returns the entities that meet the conditions, in model space unless one names a block. Throws SaveError if there
    // is no such block.
    std::vector<dxf::EntityRef> Select(const std::vector<Condition>& where) const;
    // Returns the kinds of all entities there, ignoring other conditions.
    std::set<std::string> KindsAround(const std::vector<Condition>& where) const;

private:
    std::vector<dxf::EntityRef> Around(const std::vector<Condition>& where) const;
    bool Meets(const dxf::EntityRef& entity, const std::vector<Condition>& where) const;

    const std::filesystem::path path_;
};

} // namespace dxfprops
