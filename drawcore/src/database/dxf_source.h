// The file that a drawing was read from: what is saved is this text with its changes.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "drawcore/src/dxf/document.h"

namespace drawcore {

class Drawing;

struct DxfSource {
    DxfSource(std::string text, const dxf::Document& document) : bytes(std::move(text)), known(document.Tables()) {}

    // The drawing is what the file holds, but for so many things that were left out.
    void NoteContents(const Drawing& drawing, size_t left = 0);
    // Whether it has become another since: by steps of its undo log, by what was added or removed, in blocks or layers.
    bool IsOutdated(const Drawing& drawing) const;

    std::string bytes;
    dxf::Document known; // header and tables
    std::filesystem::path path;
    std::vector<uint32_t> graphics;          // that were made from it: where their records are, rising
    std::vector<std::string> blocks, layers; // likewise, by their names in the drawing

private:
    uint32_t undoMark_ = 0;
    size_t contentsMark_ = 0, left_ = 0;
};

} // namespace drawcore
