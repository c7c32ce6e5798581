// Finds graphics by a point or a window on the device. Graphics that are not drawn, or are on a locked layer, are not
// found.
#pragma once

#include <vector>

#include "drawcore/src/graphics/trace.h"
#include "drawcore/src/paint/path_clip.h"
#include "drawcore/src/paint/viewport.h"

namespace drawcore {

// Returns the topmost member whose lines are within `tolerance` pixels of the point, or whose filled area or text box
// contains it. Returns null if there is none.
Graphic* PickAt(const Viewport& viewport, const Graphic& set, Point device, double tolerance, uint32_t filter);

// Returns, in drawing order, the members that are completely or, if crossing is set, at least partly inside the box.
std::vector<Graphic*> PickWithin(const Viewport& viewport, const Graphic& set, const Box& device, bool crossing,
                                 uint32_t filter);

} // namespace drawcore
