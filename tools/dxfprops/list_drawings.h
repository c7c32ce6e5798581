// Lists the contents of drawings as JSON, without a window.
#pragma once

#include <ostream>
#include <string>
#include <vector>

#include <nlohmann/json_fwd.hpp>

#include "drawcore/src/dxf/document.h"

// Returns the contents of a drawing: acadver, entities (type to count in the ENTITIES section), blocks, layers,
// linetypes, extents and, if something was omitted, findings.
nlohmann::ordered_json Describe(const dxf::Document& drawing);

// Writes an array with one object per file: file and the result of Describe, or file, error and line for one that
// cannot be read. Paths and output are UTF-8. Returns false if any file could not be read.
bool ListDrawings(const std::vector<std::string>& files, std::ostream& out);
