// Generates the lines of a hatch, clipped to the areas that they fill.
#pragma once

#include "drawcore/src/graphics/trace.h"
#include "drawcore/src/paint/path_clip.h"

namespace drawcore {

// Returns whether the lines of the pattern are at least that far apart; finer ones would only appear as gray.
bool ShowsHatch(const BrushUse& brush, double least);

// Adds the lines inside the areas and the box.
void HatchLines(const Path& areas, const BrushUse& brush, const Box& box, Path& lines);

} // namespace drawcore
