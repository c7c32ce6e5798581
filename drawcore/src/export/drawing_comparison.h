// Whether the file that a drawing is saved into gives that drawing when it is read.
#pragma once

#include <string_view>
#include <utility>
#include <vector>

#include "drawcore/src/database/drawing.h"
#include "drawcore/src/dxf/reader.h"
#include "drawcore/src/export/leftovers.h"

namespace drawcore {

// Graphics of a drawing, and where their records are in a text.
using Sources = std::vector<std::pair<Graphic*, uint32_t>>;

// Adds the graphics that the file would show in another way to those that are left; these are passed over. Identifiers
// of table entries may differ. Returns where all graphics are in the text that the document was read from, which is
// complete if nothing was added. SaveError if the file would hold other graphics.
Sources CompareWithFile(const Drawing& saved, std::string_view text, const dxf::Document& read, Leftovers& left,
                        const std::vector<uint32_t>& removedLeft, const dxf::Progress& progress);

} // namespace drawcore
