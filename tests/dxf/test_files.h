// The drawings that the tests read.
#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

inline std::string ReadBytes(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

// The folder of the drawings; its manifest.json says what is in each.
inline const std::string kDrawings = ORLO_SOURCE_DIR "/tests/data/dxf/";
