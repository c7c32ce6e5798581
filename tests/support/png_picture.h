// A PNG file as pixels.
#pragma once

#include <cstdint>
#include <filesystem>
#include <vector>

struct PngPicture {
    int width = 0, height = 0;   // 0 for a file that can't be read
    std::vector<uint8_t> colors; // red, green and blue, line by line from the top
};
PngPicture ReadPng(const std::filesystem::path& file);
