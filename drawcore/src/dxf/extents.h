// The box of what a drawing shows in model space, layer states aside.
#pragma once

#include "drawcore/src/dxf/document.h"
#include "drawcore/src/geometry/extents.h"

namespace dxf {

// Exact for lines, arcs, ellipses and what is made of them, inserted in any way; lines without their widths.
// Splines are taken as the chain of points that they are drawn by, texts as the points that they hang on: how
// wide they are, the font decides.
drawcore::Extents ExtentsOf(const Document& drawing);

} // namespace dxf
