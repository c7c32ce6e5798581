// Verifies that reading the file to be saved results in the same drawing.
#pragma once

#include <string_view>
#include <utility>
#include <vector>

#include "drawcore/src/database/drawing.h"
#include "drawcore/src/dxf/reader.h"
#include "drawcore/src/export/omitted_objects.h"

namespace drawcore {

// Graphics of a drawing, and the offsets of their records in a text.
using Sources = std::vector<std::pair<Graphic*, uint32_t>>;

// Adds the graphics that the file would show differently to `omitted`. Identifiers of table entries may differ. Returns
// the offsets of all graphics in the document's text, which is complete if nothing was added. Throws SaveError if the
// file would contain different graphics.
Sources CompareWithFile(const Drawing& saved, std::string_view text, const dxf::Document& read, OmittedObjects& omitted,
                        const std::vector<uint32_t>& notRemoved, const dxf::Progress& progress);

} // namespace drawcore
