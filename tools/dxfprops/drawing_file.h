// A drawing in a file, and the entities that a command works on.
#pragma once

#include <array>
#include <filesystem>
#include <functional>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "drawcore/dxf_document.h"
#include "tools/dxfprops/condition.h"

namespace dxfprops {

// The name of standard input and output.
constexpr char kStandardStream[] = "-";

// The entities of a drawing that are considered.
struct Selection {
    std::vector<Condition> where;
    std::string space;                           // "model", "paper", "all" or "block=NAME"; empty: model
    std::optional<std::array<double, 4>> within; // left, bottom, right, top
};

class DrawingFile : public dxf::DocumentReader {
public:
    // Throws ReadError if it cannot be read.
    explicit DrawingFile(const std::string& file, const std::function<void(int permille)>& progress = {});

    // Replaces the output file, or prints the bytes if the output is kStandardStream. The drawing's own file is not
    // written if its contents are the same, and rejected if another program has changed it since it was read. With
    // keepsBackup, the previous contents of the output are stored as OUTPUT.bak. Throws FileError and SaveError.
    void Write(const std::string& bytes, const std::string& output, bool keepsBackup) const;

    // Returns all entities of the selection's space, regardless of the conditions. Throws SaveError if there is no such
    // block.
    std::vector<dxf::EntityRef> Around(const Selection& selection) const;
    // Returns the kinds of all entities in the space.
    std::set<std::string> KindsAround(const Selection& selection) const;

private:
    const std::filesystem::path path_; // empty for standard input
};

// Tests the entities of one drawing. The drawing and the selection must outlive this object.
class Selector {
public:
    Selector(const DrawingFile& drawing, const Selection& selection)
        : drawing_(drawing), selection_(selection), test_(drawing, selection.where) {}

    bool IsSelected(const dxf::EntityRef& entity);

private:
    const DrawingFile& drawing_;
    const Selection& selection_;
    ConditionTest test_;
};

} // namespace dxfprops
