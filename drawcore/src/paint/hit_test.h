// Finding graphics by a point or a window on the device. What is not drawn is not found; what lies on a locked layer is
// passed over.
#pragma once

#include <vector>

#include "drawcore/src/graphics/trace.h"
#include "drawcore/src/paint/path_clip.h"
#include "drawcore/src/paint/viewport.h"

namespace drawcore {

// The member drawn last whose lines come within that many pixels of the point, or whose filled area or text box holds
// it; null if there isn't one.
Graphic* PickAt(const Viewport& viewport, const Graphic& set, Point device, double tolerance, uint32_t filter);

// The members that lie wholly in the box or, if crossing, that have any part in it; in the order of drawing.
std::vector<Graphic*> PickWithin(const Viewport& viewport, const Graphic& set, const Box& device, bool crossing,
                                 uint32_t filter);

} // namespace drawcore
