// The tables of a drawing from those of a DXF document: line styles, layers, units.
#pragma once

#include <vector>

#include "drawcore/src/database/drawing.h"
#include "drawcore/src/dxf/document.h"

namespace drawcore {

// Identifiers in the drawing's tables by position in the document's lists. What found no room in a full table has the
// identifier of the first entry: "Continuous", layer "0".
struct ImportedTables {
    std::vector<Id> lineStyles;
    std::vector<Id> layers;
    std::vector<Id> blocks; // no identifier for what is only mentioned, and for model and paper space
};

// The name of an entry for a name as it is stored in a file.
std::string HostName(const std::string& stored);

// What a layer of the document is in a drawing with these line styles.
Layer ImportedLayer(const dxf::Layer& from, const LineStyleTable& styles);

// Fills tables and units; the blocks are still empty.
ImportedTables ImportTables(const dxf::Document& document, Drawing& drawing);

} // namespace drawcore
