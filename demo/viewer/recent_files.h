// The list of recent drawings, stored for the user in the registry.
#pragma once

#include <string>
#include <vector>

class RecentFiles {
public:
    static constexpr size_t kMax = 8;

    // Returns full paths in UTF-8, the most recent first. If the registry denies access, the list is empty.
    static std::vector<std::string> List();
    // Moves it to the front, and removes the last one if there are too many.
    static void Add(const std::string& path);
    static void Remove(const std::string& path);
};
