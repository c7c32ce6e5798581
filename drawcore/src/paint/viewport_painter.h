// Paints graphics on the device of a viewport, in one call or in several of limited time.
#pragma once

#include <chrono>

#include "drawcore/src/geometry/matrix.h"
#include "drawcore/src/paint/gdi_painter.h"
#include "drawcore/src/paint/viewport.h"

namespace drawcore {

using PaintClock = std::chrono::steady_clock;

// Returns the viewport's drawing or, if it has none, the graphic's; may be null.
const DrawingContents* DrawingFor(const Viewport& viewport, const Graphic& graphic);

PaintSettings SettingsOf(const Viewport& viewport, bool preview);

// Paints a graphic and then its members until the time is up. place: 0 at first, then the value from the last call.
// Returns true when everything has been painted.
bool PaintUntil(PaintClock::time_point end, const Graphic& graphic, Viewport& viewport, uint32_t& place,
                const Matrix& placement, PaintSettings settings, bool preview);

void Paint(const Graphic& graphic, Viewport& viewport, const Matrix& placement, const PaintSettings& settings,
           bool preview);

} // namespace drawcore
