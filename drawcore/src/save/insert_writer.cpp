// Writes the placement of block insertions.
#include <algorithm>
#include <cmath>

#include "drawcore/include/drawcore/dxf_document.h"
#include "drawcore/src/dxf/placement.h"
#include "drawcore/src/save/appearance_writer.h"

namespace dxf {

namespace {

// Returns whether two placements of a block differ at most in its position and in invisible amounts.
bool IsSamePlacement(const Matrix& a, const Matrix& b) {
    for (int row = 0; row < 3; ++row)
        for (int column = 0; column < 3; ++column)
            if (!Near(a.at[row][column], b.at[row][column])) return false;
    return true;
}

// Removes rounding errors beyond the ninth decimal place.
double Clean(double number, double rounding) {
    const double round = std::round(number * 1e9) / 1e9;
    return std::fabs(round - number) <= rounding * std::max(1.0, std::fabs(number)) ? round : number;
}

constexpr double kDegrees = drawcore::Degrees(1); // of a radian

// Returns the new angle in degrees, or the old one if they differ only by whole turns.
double ChangedAngle(double was, double now, double rounding) {
    return std::fabs(std::remainder(now - was, 360)) <= rounding ? was : now;
}

// Returns the numbers of an insertion in its object coordinates that approximate the placement, close to those of
// `insert`. Mirroring the x axis equals mirroring the y axis and turning by a half turn: an insertion that was mirrored
// at an axis remains mirrored at it, and one that becomes mirrored keeps its angle.
Insert PlacedInsert(const Vec3& normal, const Insert& insert, const Matrix& placement) {
    Insert placed;
    Matrix back;
    if (!ObjectSystem(normal).Invert(back)) return placed;
    const Vec3 x = back.ApplyToVector(placement.ApplyToVector({1, 0, 0})),
               y = back.ApplyToVector(placement.ApplyToVector({0, 1, 0}));
    const double old = Radians(insert.rotation);
    const bool mirrors = (x.x * y.y - x.y * y.x < 0) != (insert.scaleX * insert.scaleY < 0);
    double sign = insert.scaleX < 0 ? -1 : 1;
    const auto angleOf = [&] { return Length(x) > 0 ? std::atan2(x.y * sign, x.x * sign) : old; };
    if (mirrors && std::cos(angleOf() - old) < 0) sign = -sign;
    const double angle = angleOf(), rounding = RoundingAt(placement.Apply({}));
    // Keeps the old number unless it has changed.
    const auto number = [&](double was, double now, double unit) {
        return std::fabs(was - now) <= rounding * unit ? was : Clean(now, rounding * unit);
    };
    placed.scaleX = number(insert.scaleX, x.x * std::cos(angle) + x.y * std::sin(angle), 1);
    placed.scaleY = number(insert.scaleY, y.y * std::cos(angle) - y.x * std::sin(angle), 1);
    placed.scaleZ = number(insert.scaleZ, back.ApplyToVector(placement.ApplyToVector({0, 0, 1})).z, 1);
    placed.rotation =
        ChangedAngle(insert.rotation, number(insert.rotation, angle * kDegrees, kDegrees), rounding * kDegrees);
    placed.at = back.Apply(placement.Apply({}));
    return placed;
}

Matrix MatrixOf(const Vec3& normal, const Insert& insert) {
    Entity entity;
    entity.normal = normal;
    return InsertMatrix(entity, insert, Block(), 0, 0);
}

// Returns the normal of the placed block's plane, on the side that preserves the sign of the z scale.
Vec3 NormalOf(const Matrix& placement, const Insert& insert) {
    const Vec3 z = placement.ApplyToVector({0, 0, 1});
    const Vec3 normal = Normalized(Cross(placement.ApplyToVector({1, 0, 0}), placement.ApplyToVector({0, 1, 0})));
    return normal * (Dot(normal, z) * insert.scaleZ < 0 ? -1 : 1);
}

// Returns the directions of an array.
Matrix AxesOf(const Entity& entity, const Insert& insert) {
    return Matrix::RotationZ(Radians(insert.rotation)) * ObjectSystem(entity.normal);
}

} // namespace

void AppearanceWriter::Place(const AxisEnds& ends, const Insert* numbers) {
    if (AxisEndsOf(entity_) == ends) return;
    const Matrix placement = PlacementOf(ends), motion = MotionBetween(PlacementOf(entity_), placement);
    RemoveExtended(kExtendedPlacement);
    if (auto* insert = As<Insert>(entity_)) {
        const Matrix axes = AxesOf(entity_, *insert);
        PutPlacement(*insert, placement, numbers ? *numbers : *insert);
        if (insert->columns > 1 || insert->rows > 1) MoveArray(*insert, axes * motion);
        for (const Entity& attribute : insert->attributes)
            drawing_.moved_[attribute.offset] = motion;
    } else if (auto* dimension = As<Dimension>(entity_)) {
        const Vec3 to = placement.Apply({});
        PutPoint(12, dimension->offset, to);
        dimension->offset = to;
    }
    if (AxisEndsOf(entity_) == ends) return;
    if (IsSamePlacement(PlacementOf(entity_), placement)) exact_.insert(kExtendedPlacement);
    ExtendedNumbers(kExtendedPlacement, NumbersOf(ends, entity_));
}

void AppearanceWriter::PutPlacement(Insert& insert, const Matrix& placement, const Insert& numbers) {
    const bool isTable = record_.Groups()[0].value.find("TABLE") != std::string_view::npos;
    Vec3 normal = entity_.normal;
    Insert placed = PlacedInsert(normal, numbers, placement);
    if (!isTable && !IsSamePlacement(MatrixOf(normal, placed), placement)) { // not in the plane of the insertion
        const Vec3 tilted = NormalOf(placement, numbers);
        Insert other = PlacedInsert(tilted, numbers, placement);
        if (IsSamePlacement(MatrixOf(tilted, other), placement)) {
            normal = tilted;
            placed = std::move(other);
        }
    }
    PutPoint(10, insert.at, placed.at);
    insert.at = placed.at;
    if (isTable) return; // has no scale, and its rotation is a vector
    PutPoint(210, entity_.normal, normal);
    PutReal(41, insert.scaleX, placed.scaleX, {30});
    PutReal(42, insert.scaleY, placed.scaleY, {41, 30});
    PutReal(43, insert.scaleZ, placed.scaleZ, {42, 41, 30});
    PutReal(50, insert.rotation, placed.rotation, {43, 42, 41, 30});
    entity_.normal = normal;
    insert.scaleX = placed.scaleX;
    insert.scaleY = placed.scaleY;
    insert.scaleZ = placed.scaleZ;
    insert.rotation = placed.rotation;
}

// The steps of an array follow its rotated axes; the moved vectors refer to the previous axes.
void AppearanceWriter::MoveArray(Insert& insert, const Matrix& moved) {
    const Matrix axes = AxesOf(entity_, insert);
    const auto step = [&](int code, double& spacing, const Vec3& axis) {
        const Vec3 now = moved.ApplyToVector(axis * spacing), along = axes.ApplyToVector(axis);
        const double rounding = RoundingAt(insert.at);
        double length = Dot(now, along);
        if (Length(along * length - now) > rounding * std::max(1.0, Length(now)))
            throw SaveError("the file format cannot store a sheared array of insertions");
        length = std::fabs(length - spacing) <= rounding ? spacing : Clean(length, rounding);
        PutReal(code, spacing, length, {71, 70, 43, 42, 41, 30});
        spacing = length;
    };
    step(44, insert.columnSpacing, {1, 0, 0});
    step(45, insert.rowSpacing, {0, 1, 0});
}

} // namespace dxf
