// Where entities lie: object systems, and the ways from blocks to the drawing.
#pragma once

#include "drawcore/src/dxf/document.h"
#include "drawcore/src/geometry/matrix.h"

namespace dxf {

using drawcore::Matrix;
using drawcore::Radians;

// From an entity's object system to the world: the arbitrary axis algorithm of the file format.
Matrix ObjectSystem(const Vec3& normal);

// From a block to the space that the insert lies in, for one cell of its array.
Matrix InsertMatrix(const Entity& entity, const Insert& insert, const Block& block, uint32_t column,
                    uint32_t row);
Matrix DimensionMatrix(const Dimension& dimension, const Block& block);

} // namespace dxf
