// The results of the commands as lines of text and as JSON; both UTF-8.
#pragma once

#include <functional>
#include <ostream>
#include <string>
#include <vector>

#include <nlohmann/json_fwd.hpp>

#include "tools/dxfprops/commands.h"

namespace dxfprops {

// What a drawing holds, in a few lines.
void PrintSummary(const std::string& file, std::ostream& out);
void Print(const Listing& listing, std::ostream& out);
void Print(const std::vector<Difference>& differences, const std::string& before, const std::string& after,
           std::ostream& out);

// Writes an array with one object per file: file and what the call returns, or file, error, line for one that is
// refused. False if any file was refused.
bool PrintArray(const std::vector<std::string>& files,
                const std::function<nlohmann::ordered_json(const std::string&)>& describe, std::ostream& out);
nlohmann::ordered_json JsonOf(const Listing& listing);
nlohmann::ordered_json JsonOf(const std::vector<Difference>& differences);

} // namespace dxfprops
