// Object coordinate systems from normals, and the placement of blocks.
#include "drawcore/src/dxf/placement.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>

#include "drawcore/src/dxf/appearance.h"

namespace dxf {

Matrix ObjectSystem(const Vec3& normal) {
    const double length = Length(normal);
    if (!(length > 0) || !std::isfinite(length)) return {};
    const Vec3 z = normal * (1 / length);
    constexpr double kNearZ = 1.0 / 64; // limit defined by the file format
    const bool nearZ = std::abs(z.x) < kNearZ && std::abs(z.y) < kNearZ;
    const Vec3 across = Cross(nearZ ? Vec3{0, 1, 0} : Vec3{0, 0, 1}, z);
    const Vec3 x = across * (1 / Length(across));
    return Matrix::FromAxes(x, Cross(z, x), z, {});
}

bool IsPlacedByInsertion(const Text& text) {
    return text.horizontal == Text::Horizontal::left && text.vertical == Text::Vertical::baseline;
}

namespace {

struct PositionFinder {
    const Entity& entity;
    using Found = std::optional<Vec3>;

    Found operator()(const Line& line) const { return line.start; }
    Found operator()(const PointMark& mark) const { return mark.at; }
    Found operator()(const Circle& circle) const { return InWorld(circle.center); }
    Found operator()(const Arc& arc) const { return InWorld(arc.center); }
    Found operator()(const Ellipse& ellipse) const { return ellipse.center; }
    Found operator()(const Polyline& polyline) const {
        const bool isFlat = polyline.kind == Polyline::Kind::flat;
        if (polyline.vertices.empty() || !(isFlat || polyline.kind == Polyline::Kind::spatial)) return std::nullopt;
        return isFlat ? InWorld(polyline.vertices[0].at) : polyline.vertices[0].at;
    }
    Found operator()(const Leader& leader) const {
        return leader.vertices.empty() ? std::nullopt : Found(leader.vertices[0]);
    }
    Found operator()(const Boxed<Text>& text) const {
        if (text->role == Text::Role::attribute) return std::nullopt;
        return InWorld(IsPlacedByInsertion(*text) ? text->insertion : text->alignment);
    }
    Found operator()(const Boxed<MText>& text) const { return text->insertion; }
    Found operator()(const Boxed<Insert>& insert) const {
        return insert->block == BlockIndex::none ? std::nullopt : Found(AxisEndsOf(entity)[0]);
    }
    template <class Other>
    Found operator()(const Other&) const {
        return std::nullopt;
    }

    Vec3 InWorld(const Vec3& point) const { return ObjectSystem(entity.normal).Apply(point); }
};

} // namespace

std::optional<Vec3> PositionOf(const Entity& entity) {
    return std::visit(PositionFinder{entity}, entity.shape);
}

Matrix InsertMatrix(const Entity& entity, const Insert& insert, const Block& block, uint32_t column, uint32_t row) {
    const Vec3 cell{column * insert.columnSpacing, row * insert.rowSpacing, 0};
    return Matrix::Translation(block.base * -1) * Matrix::Scaling({insert.scaleX, insert.scaleY, insert.scaleZ}) *
           Matrix::Translation(cell) * Matrix::RotationZ(Radians(insert.rotation)) * Matrix::Translation(insert.at) *
           ObjectSystem(entity.normal);
}

namespace {

Matrix PlacementByGroups(const Entity& entity) {
    if (const auto* insert = As<Insert>(entity)) return InsertMatrix(entity, *insert, Block(), 0, 0);
    if (const auto* dimension = As<Dimension>(entity)) return Matrix::Translation(dimension->offset);
    return {};
}

// The groups that place an insertion, stored with extended data to detect later changes.
using GroupNumbers = std::array<double, 10>;
GroupNumbers GroupNumbersOf(const Entity& entity) {
    const Vec3& normal = entity.normal;
    if (const auto* insert = As<Insert>(entity)) {
        const Vec3& at = insert->at;
        return {at.x,     at.y,     at.z,    insert->scaleX, insert->scaleY, insert->scaleZ, insert->rotation,
                normal.x, normal.y, normal.z};
    }
    const auto* dimension = As<Dimension>(entity);
    const Vec3 offset = dimension ? dimension->offset : Vec3();
    return {offset.x, offset.y, offset.z, 1, 1, 1, 0, normal.x, normal.y, normal.z};
}

// Returns nothing also if another program has changed the groups since. Files of earlier versions contain the axes and
// the origin, and only the position of the groups.
std::optional<AxisEnds> ExtendedAxisEnds(const Entity& entity) {
    constexpr size_t kOlder = 15;
    const ExtendedValue* extended = FindExtended(entity, kExtendedPlacement);
    if (!extended || extended->numbers.size() < kOlder) return std::nullopt;
    const double* n = extended->numbers.data();
    AxisEnds ends;
    for (size_t i = 0; i < ends.size(); ++i)
        ends[i] = {n[3 * i], n[3 * i + 1], n[3 * i + 2]};
    const GroupNumbers groups = GroupNumbersOf(entity);
    if (extended->numbers.size() >= 12 + groups.size())
        return std::equal(groups.begin(), groups.end(), n + 12) ? std::optional(ends) : std::nullopt;
    const Vec3 point = PlacementByGroups(entity).Apply({});
    if (!Near(Vec3{n[12], n[13], n[14]}, point)) return std::nullopt;
    return AxisEndsOf(Matrix::FromAxes(ends[0], ends[1], ends[2], ends[3]));
}

// Returns the placement with a nonzero z axis, since many files have insertions with a z scale of 0.
Matrix Solid(const Matrix& placement) {
    const Vec3 x = placement.ApplyToVector({1, 0, 0}), y = placement.ApplyToVector({0, 1, 0}),
               z = placement.ApplyToVector({0, 0, 1});
    return Length(z) > 0 ? placement : Matrix::FromAxes(x, y, Normalized(Cross(x, y)), placement.Apply({}));
}

} // namespace

Matrix PlacementOf(const Entity& entity) {
    const std::optional<AxisEnds> extended = ExtendedAxisEnds(entity);
    return extended ? PlacementOf(*extended) : PlacementByGroups(entity);
}

Matrix PlacementOf(const AxisEnds& ends) {
    return Matrix::FromAxes(ends[1] - ends[0], ends[2] - ends[0], ends[3] - ends[0], ends[0]);
}

AxisEnds AxisEndsOf(const Matrix& placement) {
    return {placement.Apply({}), placement.Apply({1, 0, 0}), placement.Apply({0, 1, 0}), placement.Apply({0, 0, 1})};
}

AxisEnds AxisEndsOf(const Entity& entity) {
    const std::optional<AxisEnds> extended = ExtendedAxisEnds(entity);
    return extended ? *extended : AxisEndsOf(PlacementByGroups(entity));
}

std::vector<double> NumbersOf(const AxisEnds& ends, const Entity& entity) {
    std::vector<double> numbers;
    for (const Vec3& end : ends)
        numbers.insert(numbers.end(), {end.x, end.y, end.z});
    const GroupNumbers groups = GroupNumbersOf(entity);
    numbers.insert(numbers.end(), groups.begin(), groups.end());
    return numbers;
}

double RoundingAt(const Vec3& point) {
    const double magnitude = std::max({1.0, std::fabs(point.x), std::fabs(point.y), std::fabs(point.z)});
    return 4 * std::numeric_limits<double>::epsilon() * magnitude;
}

bool HaveSameAxes(const Matrix& a, const Matrix& b) {
    for (const Vec3& axis : {Vec3{1, 0, 0}, Vec3{0, 1, 0}, Vec3{0, 0, 1}}) {
        const Vec3 length = a.ApplyToVector(axis);
        const double rounding = std::max({RoundingAt(a.Apply({})), RoundingAt(b.Apply({})), RoundingAt(length)});
        const Vec3 difference = b.ApplyToVector(axis) - length;
        if (Length(difference) > rounding) return false;
    }
    return true;
}

Matrix MotionBetween(const Matrix& from, const Matrix& to) {
    Matrix back;
    return !HaveSameAxes(from, to) && Solid(from).Invert(back) ? back * Solid(to)
                                                               : Matrix::Translation(to.Apply({}) - from.Apply({}));
}

Matrix DimensionMatrix(const Dimension& dimension, const Block& block) {
    return Matrix::Translation(dimension.offset - block.base);
}

} // namespace dxf
