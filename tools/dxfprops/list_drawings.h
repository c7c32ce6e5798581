// Lists the contents of drawings as JSON, without a window.
#pragma once

#include <ostream>
#include <string>
#include <vector>

#include <nlohmann/json_fwd.hpp>

#include "drawcore/dxf_document.h"

// Describes the contents of a drawing: acadver, entities (type to count in the ENTITIES section), blocks, layers,
// linetypes, extents and, if something was omitted, warnings.
nlohmann::ordered_json Describe(const dxf::Contents& drawing);
// Does the same for the drawing in a file; the path is UTF-8. Throws ReadError.
nlohmann::ordered_json DescribeFile(const std::string& file);

// Writes an array with one object per file: file and the result of Describe, or file, error and line for one that
// cannot be read. Paths and output are UTF-8. Returns false if any file could not be read.
bool ListDrawings(const std::vector<std::string>& files, std::ostream& out);
