// Lists what drawings hold, as JSON, without opening a window.
#pragma once

#include <ostream>
#include <string>
#include <vector>

#include <nlohmann/json_fwd.hpp>

#include "drawcore/src/dxf/document.h"

// What a drawing holds: acadver, entities (type to count in the ENTITIES section), blocks, layers, linetypes, extents
// and, if something was left out, findings.
nlohmann::ordered_json Describe(const dxf::Document& drawing);

// Writes an array with one object per file: file and what Describe returns, or file, error, line for one that is
// refused. Paths and output are UTF-8. False if any file was refused.
bool ListDrawings(const std::vector<std::string>& files, std::ostream& out);
