// A PNG file as pixels.
#pragma once

#include <cstdint>
#include <filesystem>
#include <vector>

struct PngPicture {
    int width = 0, height = 0;   // 0 if the file cannot be read
    std::vector<uint8_t> colors; // red, green and blue of each pixel, from the top line down
};
PngPicture ReadPng(const std::filesystem::path& file);
