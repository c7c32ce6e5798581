// Files of the tests: drawings that the repository carries, and the larger collection beside it, where that
// is.
#pragma once

#include <fstream>
#include <iterator>
#include <string>
#include <vector>

inline std::string ReadBytes(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

// Folders with drawings and a manifest.json that says what is in them.
inline std::vector<std::string> DrawingFolders() {
    std::vector<std::string> folders{ORLO_SOURCE_DIR "/tests/data/dxf/"};
    const std::string collection = ORLO_SOURCE_DIR "/../shared/corpus/dxf/";
    if (std::ifstream(collection + "manifest.json")) folders.push_back(collection);
    return folders;
}
