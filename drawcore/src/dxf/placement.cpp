// Object systems from their normals, and where the block of a dimension lies.
#include "drawcore/src/dxf/placement.h"

#include <cmath>

namespace dxf {

Matrix ObjectSystem(const Vec3& normal) {
    const double length = Length(normal);
    if (!(length > 0) || !std::isfinite(length)) return {};
    const Vec3 z = normal * (1 / length);
    constexpr double kNearZ = 1.0 / 64; // the file format's own border
    const bool nearZ = std::abs(z.x) < kNearZ && std::abs(z.y) < kNearZ;
    const Vec3 across = Cross(nearZ ? Vec3{0, 1, 0} : Vec3{0, 0, 1}, z);
    const Vec3 x = across * (1 / Length(across));
    return Matrix::FromAxes(x, Cross(z, x), z, {});
}

Matrix InsertMatrix(const Entity& entity, const Insert& insert, const Block& block, uint32_t column,
                    uint32_t row) {
    const Vec3 cell{column * insert.columnSpacing, row * insert.rowSpacing, 0};
    return Matrix::Translation(block.base * -1) *
           Matrix::Scaling({insert.scaleX, insert.scaleY, insert.scaleZ}) * Matrix::Translation(cell) *
           Matrix::RotationZ(Radians(insert.rotation)) * Matrix::Translation(insert.at) *
           ObjectSystem(entity.normal);
}

Matrix DimensionMatrix(const Dimension& dimension, const Block& block) {
    return Matrix::Translation(dimension.offset - block.base);
}

} // namespace dxf
