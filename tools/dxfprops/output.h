// Prints the results of the commands as lines of text and as JSON, both in UTF-8.
#pragma once

#include <functional>
#include <ostream>
#include <string>
#include <vector>

#include <nlohmann/json_fwd.hpp>

#include "tools/dxfprops/commands.h"

namespace dxfprops {

// Prints the contents of a drawing in a few lines.
void PrintSummary(const std::string& file, std::ostream& out);
void Print(const Listing& listing, std::ostream& out);
void Print(const std::vector<Difference>& differences, const std::string& before, const std::string& after,
           std::ostream& out);

// Writes an array with one object per file: file and the result of the call, or file, error and line for one that
// failed. Returns false if any file failed.
bool PrintArray(const std::vector<std::string>& files,
                const std::function<nlohmann::ordered_json(const std::string&)>& describe, std::ostream& out);
nlohmann::ordered_json JsonOf(const Listing& listing);
nlohmann::ordered_json JsonOf(const std::vector<Difference>& differences);

} // namespace dxfprops
