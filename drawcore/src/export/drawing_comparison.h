// Whether the file that a drawing is saved into gives that drawing when it is read.
#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "drawcore/src/database/drawing.h"
#include "drawcore/src/dxf/document.h"
#include "drawcore/src/graphics/graphic.h"

namespace drawcore {

// Graphics of a drawing, and where their records are in a text.
using Sources = std::vector<std::pair<Graphic*, uint32_t>>;

// The first difference, for the user; empty if there is none. Identifiers of entries may differ, and of numbers the last
// digits. What the document lacks are blocks that the program has made, which is no difference. Without one, sources has all
// graphics of the file. The text is what the document was read from.
std::string FirstDifference(const Drawing& saved, std::string_view text, const dxf::Document& read,
                            Sources& sources);

} // namespace drawcore
