// Creates a drawing from a DXF document.
#pragma once

#include <memory>

#include "drawcore/src/database/drawing.h"
#include "drawcore/src/dxf/reader.h"

namespace drawcore {

// Converts the document's model space with its tables and blocks. Omitted objects are added to its warnings.
std::unique_ptr<Drawing> ImportDxf(dxf::Document& document, const dxf::Progress& progress);

} // namespace drawcore
