// All streams of a compound file, by the system's own reading, to see what an edit has touched.
#pragma once

#include <filesystem>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "orlo/propset/inspect/set_image.h"

// Path inside the file ("Outer/Inner", 8-bit) to bytes.
std::map<std::string, std::vector<unsigned char>> StreamsOf(const std::filesystem::path& file);
// Changes the property set in a stream of the document's own (8-bit name), whatever it does to it.
void EditSet(const std::filesystem::path& file, const std::string& stream,
             const std::function<void(orlo::SetImage&)>& edit);
