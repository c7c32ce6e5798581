// The box of what a drawing shows in model space, layer states aside.
#pragma once

#include "drawcore/src/dxf/document.h"
#include "drawcore/src/geometry/extents.h"

namespace dxf {

// Exact for lines, arcs, ellipses and what is made of them, inserted in any way; lines without their widths.
// Splines count as the chain of points that they are drawn by, texts as their insertion points: their width
// depends on the font.
drawcore::Extents ExtentsOf(const Document& drawing);

} // namespace dxf
