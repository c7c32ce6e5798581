// Reads all streams of a compound file with the system's functions, to find what an edit has changed.
#pragma once

#include <filesystem>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "orlo/propset/inspect/set_image.h"

// Maps paths inside the file ("Outer/Inner", 8-bit) to bytes.
std::map<std::string, std::vector<unsigned char>> StreamsOf(const std::filesystem::path& file);
// Edits the property set in a stream of the root storage (8-bit name) with a function.
void EditSet(const std::filesystem::path& file, const std::string& stream,
             const std::function<void(orlo::SetImage&)>& edit);
