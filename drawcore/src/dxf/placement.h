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
// Where an insertion or dimension shows its block, but for the base point: by its groups, or by its own extended data where
// these can't say it.
Matrix PlacementOf(const Entity& entity);
// A placement as numbers for the own extended data of the entity that it belongs to.
std::vector<double> NumbersOf(const Matrix& placement, const Entity& entity);
// The same placement with a z axis all the same: files have a good many insertions with a z scale of 0.
Matrix Solid(const Matrix& placement);
Matrix DimensionMatrix(const Dimension& dimension, const Block& block);

} // namespace dxf
