// Brushes and brush styles from the looks of entities.
#pragma once

#include "drawcore/src/database/drawing.h"
#include "drawcore/src/dxf/look.h"
#include "drawcore/src/graphics/attributes.h"

namespace drawcore {

// A pattern becomes a style of the table, at scale 1 and angle 0, unless the table has it already; patterns that differ
// under one name are numbered.
Brush ImportBrush(const dxf::BrushLook& look, BrushStyleTable& styles);

// The lines of a style as a file has them; of the others none.
std::vector<dxf::Hatch::PatternLine> FileLines(const BrushStyle& style);

} // namespace drawcore
