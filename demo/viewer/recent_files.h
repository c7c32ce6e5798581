// The drawings that the user has worked on last, kept in the user's part of the registry.
#pragma once

#include <string>
#include <vector>

class RecentFiles {
public:
    static constexpr size_t kMost = 8;

    // Full paths in UTF-8, the last one first. What the registry refuses is like a list without entries.
    static std::vector<std::string> List();
    // Puts it first; the one beyond the most goes.
    static void Add(const std::string& path);
    static void Remove(const std::string& path);
};
