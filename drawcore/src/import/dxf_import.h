// Makes a drawing from a DXF document that has been read. Shows nothing, reads no file.
#pragma once

#include <memory>

#include "drawcore/src/database/drawing.h"
#include "drawcore/src/dxf/reader.h"

namespace drawcore {

// The document's model space with its tables and blocks. What has no place in a drawing is added to its findings.
std::unique_ptr<Drawing> ImportDxf(dxf::Document& document, const dxf::Progress& progress);

} // namespace drawcore
