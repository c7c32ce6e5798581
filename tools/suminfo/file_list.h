// The files that a command line names, and those that its folders hold.
#pragma once

#include <string>
#include <vector>

namespace suminfo {

struct FileList {
    struct Unreadable {
        std::string name, why;
    };

    std::vector<std::string> files;
    std::vector<Unreadable> unreadable; // folders that can't be listed, and what in them can't be looked at
};

// The named files in their order. With recursive, a folder stands for the compound files in it, sorted by folder, and
// no file is there twice, by whichever links it was reached.
FileList FilesOf(const std::vector<std::string>& named, bool recursive);

} // namespace suminfo
