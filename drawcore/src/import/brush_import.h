// Creates brushes and brush styles from the appearance of entities.
#pragma once

#include "drawcore/src/database/drawing.h"
#include "drawcore/src/dxf/appearance.h"
#include "drawcore/src/graphics/attributes.h"

namespace drawcore {

// Adds the pattern to the table as a style, at scale 1 and angle 0, unless it exists; different patterns with the same
// name are numbered.
Brush ImportBrush(const dxf::BrushAppearance& appearance, BrushStyleTable& styles);

// Returns the lines of a style that a file has to contain, none for predefined styles.
std::vector<dxf::Hatch::PatternLine> FileLines(const BrushStyle& style);

} // namespace drawcore
