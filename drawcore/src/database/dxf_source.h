// The file that a drawing was read from. Saving copies its text with the changes.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "drawcore/src/dxf/document.h"

namespace drawcore {

class Drawing;

struct DxfSource {
    DxfSource(std::string text, const dxf::Document& document) : bytes(std::move(text)), known(document.Tables()) {}

    // Records that the drawing equals the file, except for that many omitted objects.
    void RecordContents(const Drawing& drawing, size_t omitted = 0);
    // Returns whether the drawing has changed since then: by undo steps, added or removed graphics, or changes in
    // blocks or layers.
    bool IsOutdated(const Drawing& drawing) const;

    std::string bytes;
    dxf::Document known; // header and tables
    std::filesystem::path path;
    std::vector<uint32_t> graphics;          // offsets of the records that graphics were created from, ascending
    std::vector<std::string> blocks, layers; // likewise, by name in the drawing

private:
    uint32_t undoMark_ = 0;
    size_t contentsMark_ = 0, omitted_ = 0;
};

} // namespace drawcore
