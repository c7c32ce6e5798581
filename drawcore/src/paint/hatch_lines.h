// The lines of a hatch, cut to the areas that they fill.
#pragma once

#include "drawcore/src/graphics/trace.h"
#include "drawcore/src/paint/path_clip.h"

namespace drawcore {

// Whether the lines of the pattern are at least that far apart; otherwise they would only make a gray.
bool ShowsHatch(const BrushUse& brush, double least);

// The lines within the areas and the box.
void HatchLines(const Path& areas, const BrushUse& brush, const Box& box, Path& lines);

} // namespace drawcore
