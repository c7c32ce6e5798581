// The file that a drawing was read from: what is saved is this text with its changes.
#pragma once

#include <filesystem>
#include <string>

#include "drawcore/src/dxf/document.h"

namespace drawcore {

struct DxfSource {
    DxfSource(std::string text, const dxf::Document& document)
        : bytes(std::move(text)), known(document.Tables()) {}

    std::string bytes;
    dxf::Document known; // header and tables
    std::filesystem::path path;
    size_t graphics = 0; // that were made of it
};

} // namespace drawcore
