// Brush styles from the hatches of a DXF document.
#pragma once

#include "drawcore/src/database/drawing.h"
#include "drawcore/src/dxf/entities.h"
#include "drawcore/src/graphics/attributes.h"

namespace drawcore {

// The brush that a hatch is filled with. Its pattern becomes a style of the table, at scale 1 and angle 0, unless the table
// has it already; patterns that differ under one name are numbered. No brush if there is nothing to fill with.
Brush ImportBrush(const dxf::Hatch& hatch, BrushStyleTable& styles);

} // namespace drawcore
