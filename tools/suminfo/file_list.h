// Expands the files and folders of a command line.
#pragma once

#include <string>
#include <vector>

namespace suminfo {

struct FileList {
    struct Unreadable {
        std::string name, reason;
    };

    std::vector<std::string> files;
    std::vector<Unreadable> unreadable; // folders that cannot be listed, and entries that cannot be examined
};

// Returns the named files in order. With recursive, a folder is replaced by the compound files in it, sorted by folder,
// and a file is listed only once, even if several links lead to it.
FileList FilesOf(const std::vector<std::string>& named, bool recursive);

} // namespace suminfo
