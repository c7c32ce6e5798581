// The box of what a drawing shows in model space, layer states aside.
#pragma once

#include "drawcore/src/dxf/geometry.h"

namespace dxf {

// Exact for lines, arcs, ellipses and what is made of them, inserted in any way; lines without their widths.
// Splines are taken as the chain of points that Flatten gives, texts as the points that they hang on: how
// wide they are, the font decides.
Box Extents(const Document& drawing);

} // namespace dxf
