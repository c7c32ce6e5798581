// Whether the file that a drawing is saved into gives that drawing when it is read.
#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "drawcore/src/database/drawing.h"
#include "drawcore/src/dxf/reader.h"
#include "drawcore/src/graphics/graphic.h"

namespace drawcore {

// Graphics of a drawing, and where their records are in a text.
using Sources = std::vector<std::pair<Graphic*, uint32_t>>;

// The first difference, for the user; empty if there isn't one. Identifiers of entries may differ, and the last digits
// of numbers. Without a difference, sources has
// all graphics of the file. The text is what the document was read from.
std::string FirstDifference(const Drawing& saved, std::string_view text, const dxf::Document& read,
                            Sources& sources, const dxf::Progress& progress);

} // namespace drawcore
