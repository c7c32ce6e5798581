// A file written beside another that takes its place in one step: whatever fails before, and wherever the process ends,
// leaves the old file whole.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "drawcore/src/dxf/reader.h"

namespace dxf {

class FileReplacement {
public:
    // Makes an empty file in the folder of the target, with its permissions. SaveError if the target can't be replaced.
    explicit FileReplacement(std::filesystem::path target);
    // Removes the file unless it has taken its place.
    ~FileReplacement();
    FileReplacement(const FileReplacement&) = delete;
    FileReplacement& operator=(const FileReplacement&) = delete;

    // Onto the disk, and read back from there: SaveError if the bytes differ. What progress throws ends it.
    void Write(std::string_view bytes, const Progress& progress);
    // SaveError leaves the target as it was.
    void TakePlace();

private:
    const std::filesystem::path target_;
    std::filesystem::path path_; // empty once the file is gone
};

// Whether the file holds just these bytes now; false too if it can't be read.
bool Holds(const std::filesystem::path& path, std::string_view bytes);

} // namespace dxf
