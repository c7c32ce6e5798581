// Placement of entities: object coordinate systems, and matrices from blocks to the drawing.
#pragma once

#include <array>
#include <optional>

#include "drawcore/src/dxf/document.h"
#include "drawcore/src/geometry/matrix.h"

namespace dxf {

using drawcore::Matrix;
using drawcore::Radians;

// Returns the matrix from an entity's object coordinates to world coordinates, by the arbitrary axis algorithm of DXF.
Matrix ObjectSystem(const Vec3& normal);

// Returns the matrix from a block to the space of the insertion, for one cell of its array.
Matrix InsertMatrix(const Entity& entity, const Insert& insert, const Block& block, uint32_t column, uint32_t row);
// Returns the placement of an insertion's or dimension's block, without the base point: by its groups, or by its
// extended data if the groups cannot represent it.
Matrix PlacementOf(const Entity& entity);
// Returns the point in the world that places an entity: of an insertion, a text or a point, the center of a circle, an
// arc or an ellipse, the first vertex of a line or polyline. Returns nothing for other entities. Attributes are placed
// by their insertions.
std::optional<Vec3> PositionOf(const Entity& entity);
// Returns whether the insertion point places the text, not the alignment point.
bool IsPlacedByInsertion(const Text& text);
// The origin of the placed block, and the end points of its axes.
using AxisEnds = std::array<Vec3, 4>;
AxisEnds AxisEndsOf(const Matrix& placement);
AxisEnds AxisEndsOf(const Entity& entity);
Matrix PlacementOf(const AxisEnds& ends);
// Returns the points as numbers for the extended data of the entity.
std::vector<double> NumbersOf(const AxisEnds& ends, const Entity& entity);
// Returns the rounding error of differences between coordinates of that size.
double RoundingAt(const Vec3& point);
// Returns whether the axes of two placements differ only by rounding.
bool HaveSameAxes(const Matrix& a, const Matrix& b);
// Returns the motion from one placement to another; without a rotation if their axes are the same.
Matrix MotionBetween(const Matrix& from, const Matrix& to);
Matrix DimensionMatrix(const Dimension& dimension, const Block& block);

} // namespace dxf
