// Paths of the test drawings.
#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

inline std::string ReadBytes(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

// The folder of the drawings; its manifest.json describes their contents.
inline const std::string kDrawings = ORLO_SOURCE_DIR "/tests/data/dxf/";
