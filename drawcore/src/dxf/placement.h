// Where entities lie: object systems, and the ways from blocks to the drawing.
#pragma once

#include <array>

#include "drawcore/src/dxf/document.h"
#include "drawcore/src/geometry/matrix.h"

namespace dxf {

using drawcore::Matrix;
using drawcore::Radians;

// From an entity's object system to the world: the arbitrary axis algorithm of the file format.
Matrix ObjectSystem(const Vec3& normal);

// From a block to the space that the insert lies in, for one cell of its array.
Matrix InsertMatrix(const Entity& entity, const Insert& insert, const Block& block, uint32_t column, uint32_t row);
// Where an insertion or dimension shows its block, but for the base point: by its groups, or by its own extended data
// where these can't say it.
Matrix PlacementOf(const Entity& entity);
// Where the origin of the placed block is, and the ends of its axes.
using AxisEnds = std::array<Vec3, 4>;
AxisEnds AxisEndsOf(const Matrix& placement);
AxisEnds AxisEndsOf(const Entity& entity);
Matrix PlacementOf(const AxisEnds& ends);
// The ends as numbers for the own extended data of the entity that they belong to.
std::vector<double> NumbersOf(const AxisEnds& ends, const Entity& entity);
// Returns by how much numbers may differ that are differences of coordinates that large.
double RoundingAt(const Vec3& place);
// Whether the axes of two placements differ by the rounding of their coordinates only.
bool HaveSameAxes(const Matrix& a, const Matrix& b);
// Returns the motion from one placement to another. It turns nothing if their axes are the same.
Matrix MotionBetween(const Matrix& from, const Matrix& to);
Matrix DimensionMatrix(const Dimension& dimension, const Block& block);

} // namespace dxf
