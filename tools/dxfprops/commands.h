// What the commands do with one drawing. Texts are UTF-8; ReadError and SaveError say why a drawing failed.
#pragma once

#include <ostream>
#include <string>
#include <vector>

#include "tools/dxfprops/drawing_file.h"

namespace dxfprops {

// What a drawing holds, in a few lines.
void PrintSummary(const std::string& file, std::ostream& out);

// The properties of the entities that meet the conditions; show: these alone, or with none all that each has.
void PrintProperties(const std::string& file, const std::vector<Condition>& where,
                     const std::vector<std::string>& show, std::ostream& out);

// Sets properties of the entities that meet the conditions, where these have them, and writes the drawing into `output`:
// only what has changed differs. The number of entities that are different now.
size_t SetProperties(const std::string& file, const std::vector<Condition>& where,
                     const std::vector<Condition>& values, const std::string& output);

// Which properties differ, entity by entity: of the same handle, or else at the same place. The number of entities that
// differ.
size_t PrintDifferences(const std::string& before, const std::string& after, std::ostream& out);

} // namespace dxfprops
