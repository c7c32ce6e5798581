// All streams of a compound file, by the system's own reading, to see what an edit has touched.
#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <vector>

// Path inside the file ("Outer/Inner", 8-bit) to bytes.
std::map<std::string, std::vector<unsigned char>> StreamsOf(const std::filesystem::path& file);
