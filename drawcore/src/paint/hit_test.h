// Finds graphics by a point or a window on the device. Graphics that are not drawn, or are on a locked layer, are not
// found.
#pragma once

#include <vector>

#include "drawcore/src/graphics/trace.h"
#include "drawcore/src/paint/path_clip.h"
#include "drawcore/src/paint/viewport.h"

namespace drawcore {

// Returns the topmost member whose lines are within that many pixels of the point, or whose filled area or text box
// contains it, or null.
Graphic* PickAt(const Viewport& viewport, const Graphic& set, Point device, double tolerance, uint32_t filter);

// Returns the members that are completely in the box or, if crossing, at least partly, in drawing order.
std::vector<Graphic*> PickWithin(const Viewport& viewport, const Graphic& set, const Box& device, bool crossing,
                                 uint32_t filter);

} // namespace drawcore
