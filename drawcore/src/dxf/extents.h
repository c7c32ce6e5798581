// Computes the extents of a drawing's model space, ignoring layer states.
#pragma once

#include "drawcore/src/dxf/document.h"
#include "drawcore/src/geometry/extents.h"

namespace dxf {

// Exact for lines, arcs, ellipses and objects made of them, however they are inserted; line widths are ignored. Splines
// are measured by their line segments, texts by their insertion points, because their width depends on the font.
drawcore::Extents ExtentsOf(const Document& drawing);

} // namespace dxf
