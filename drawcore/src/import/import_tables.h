// Converts the tables of a DXF document: line styles, layers, units.
#pragma once

#include <vector>

#include "drawcore/src/database/drawing.h"
#include "drawcore/src/dxf/document.h"

namespace drawcore {

// Identifiers in the drawing's tables, by index in the document's lists. Objects that do not fit into a full table have
// the identifier of the first entry: "Continuous", layer "0".
struct ImportedTables {
    std::vector<Id> lineStyles;
    std::vector<Id> layers;
    std::vector<Id> blocks; // kNoId for undeclared blocks, and for model and paper space
};

// Returns the name of an entry for a name as stored in a file.
std::string HostName(const std::string& stored);

// Converts a layer of the document, for a drawing with these line styles.
Layer ImportedLayer(const dxf::Layer& from, const LineStyleTable& styles);

// Fills tables and units; blocks are still empty.
ImportedTables ImportTables(const dxf::Document& document, Drawing& drawing);

} // namespace drawcore
