// Object systems from their normals, and where the block of a dimension lies.
#include "drawcore/src/dxf/placement.h"

#include <cmath>

#include "drawcore/src/dxf/look.h"

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

namespace {

Matrix PlacementByGroups(const Entity& entity) {
    if (const auto* insert = std::get_if<Apart<Insert>>(&entity.shape))
        return InsertMatrix(entity, **insert, Block(), 0, 0);
    if (const auto* dimension = std::get_if<Apart<Dimension>>(&entity.shape))
        return Matrix::Translation((*dimension)->offset);
    return {};
}

} // namespace

// The groups' place goes with it: where another program has moved the insertion since, that counts.
Matrix PlacementOf(const Entity& entity) {
    const Matrix groups = PlacementByGroups(entity);
    const OwnValue* own = FindOwn(entity, kOwnPlacement);
    if (!own || own->numbers.size() < 15) return groups;
    const double* n = own->numbers.data();
    const Vec3 place = groups.Apply({});
    if (!Near(n[12], place.x) || !Near(n[13], place.y) || !Near(n[14], place.z)) return groups;
    return Matrix::FromAxes({n[0], n[1], n[2]}, {n[3], n[4], n[5]}, {n[6], n[7], n[8]}, {n[9], n[10], n[11]});
}

std::vector<double> NumbersOf(const Matrix& placement, const Entity& entity) {
    std::vector<double> numbers;
    for (const auto& row : placement.at)
        numbers.insert(numbers.end(), row, row + 3);
    const Vec3 place = PlacementByGroups(entity).Apply({});
    numbers.insert(numbers.end(), {place.x, place.y, place.z});
    return numbers;
}

Matrix Solid(const Matrix& placement) {
    const Vec3 x = placement.Turn({1, 0, 0}), y = placement.Turn({0, 1, 0}), z = placement.Turn({0, 0, 1});
    return Length(z) > 0 ? placement : Matrix::FromAxes(x, y, Normalized(Cross(x, y)), placement.Apply({}));
}

Matrix DimensionMatrix(const Dimension& dimension, const Block& block) {
    return Matrix::Translation(dimension.offset - block.base);
}

} // namespace dxf
