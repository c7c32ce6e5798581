// Requirements of matrices: row vectors; the given matrix is applied first.

#include <cmath>
#include <cstring>
#include <utility>

#include "requirement.h"

namespace {

constexpr double kRightAngle = 1.5707963267948966;

struct Point {
    double x, y, z;
};

Point Transform(const MatrixStruct& m, const Point& p) {
    double to[3];
    for (int column = 0; column < 3; ++column)
        to[column] = p.x * m.at[0][column] + p.y * m.at[1][column] + p.z * m.at[2][column] + m.at[3][column];
    return {to[0], to[1], to[2]};
}

void RequireAt(const Point& found, const Point& expected) {
    const double off =
        std::fabs(found.x - expected.x) + std::fabs(found.y - expected.y) + std::fabs(found.z - expected.z);
    Require(off < 1e-9, "a point is transformed to %g, %g, %g instead of %g, %g, %g", found.x, found.y, found.z,
            expected.x, expected.y, expected.z);
}

// The five functions with a distinct transformation each.
Owned<MatrixStruct> Scaled(const Subject& s, const MatrixStruct* matrix) {
    return s.Own(CALL(s.host, MatrixScale)(matrix, s.NewVertex(2, 3, 4).get(), 0), "MatrixScale");
}
Owned<MatrixStruct> Moved(const Subject& s, const MatrixStruct* matrix) {
    return s.Own(CALL(s.host, MatrixOffset)(matrix, s.NewVertex(2, 3, 4).get()), "MatrixOffset");
}
Owned<MatrixStruct> RotatedAboutX(const Subject& s, const MatrixStruct* matrix) {
    return s.Own(CALL(s.host, MatrixRotateX)(matrix, kRightAngle, 0), "MatrixRotateX");
}
Owned<MatrixStruct> RotatedAboutY(const Subject& s, const MatrixStruct* matrix) {
    return s.Own(CALL(s.host, MatrixRotateY)(matrix, kRightAngle, 0), "MatrixRotateY");
}
Owned<MatrixStruct> RotatedAboutZ(const Subject& s, const MatrixStruct* matrix) {
    return s.Own(CALL(s.host, MatrixRotateZ)(matrix, kRightAngle, 0), "MatrixRotateZ");
}

void Scales(const Subject& s) {
    RequireAt(Transform(*Scaled(s, nullptr), {1, 1, 1}), {2, 3, 4});
}
void Translates(const Subject& s) {
    RequireAt(Transform(*Moved(s, nullptr), {1, 1, 1}), {3, 4, 5});
}
void RotatesYToZ(const Subject& s) {
    RequireAt(Transform(*RotatedAboutX(s, nullptr), {1, 2, 0}), {1, 0, 2});
}
void RotatesZToX(const Subject& s) {
    RequireAt(Transform(*RotatedAboutY(s, nullptr), {0, 1, 2}), {2, 1, 0});
}
void RotatesXToY(const Subject& s) {
    RequireAt(Transform(*RotatedAboutZ(s, nullptr), {2, 0, 1}), {0, 2, 1});
}

// Each function, applied to a matrix that scales x by 5 and translates by 1, 2, 3.
void AppliesTheGivenMatrixFirst(const Subject& s) {
    const MatrixStruct given = {{{5, 0, 0, 0}, {0, 1, 0, 0}, {0, 0, 1, 0}, {1, 2, 3, 1}}};
    const Point from = Transform(given, {1, 1, 1}); // 6, 3, 4
    RequireAt(Transform(*Scaled(s, &given), {1, 1, 1}), {2 * from.x, 3 * from.y, 4 * from.z});
    RequireAt(Transform(*Moved(s, &given), {1, 1, 1}), {from.x + 2, from.y + 3, from.z + 4});
    RequireAt(Transform(*RotatedAboutX(s, &given), {1, 1, 1}), {from.x, -from.z, from.y});
    RequireAt(Transform(*RotatedAboutY(s, &given), {1, 1, 1}), {from.z, from.y, -from.x});
    RequireAt(Transform(*RotatedAboutZ(s, &given), {1, 1, 1}), {-from.y, from.x, from.z});
}

void KeepsTheGivenMatrix(const Subject& s) {
    const MatrixStruct before = {{{5, 0, 0, 0}, {0, 1, 0, 0}, {0, 0, 1, 0}, {1, 2, 3, 1}}};
    const std::pair<const char*, Owned<MatrixStruct> (*)(const Subject&, const MatrixStruct*)> functions[] = {
        {"MatrixScale", Scaled},
        {"MatrixOffset", Moved},
        {"MatrixRotateX", RotatedAboutX},
        {"MatrixRotateY", RotatedAboutY},
        {"MatrixRotateZ", RotatedAboutZ}};
    Violations violations;
    for (const auto& [name, function] : functions)
        violations.Collect([&, name = name, function = function] {
            MatrixStruct given = before;
            const auto result = function(s, &given);
            Require(std::memcmp(&given, &before, sizeof given) == 0, "%s changed the given matrix", name);
            Require(result.get() != &given, "%s returned the given matrix", name);
        });
    violations.Report();
}

void ClearsThePointer(const Subject& s) {
    MatrixStruct* matrix = Moved(s, nullptr).release();
    CALL(s.host, MatrixDispose)(&matrix);
    Require(!matrix, "the pointer is %p afterward", static_cast<void*>(matrix));
}

constexpr Requirement kRows[] = {
    {"MatrixScale", "scales along the axes; null is the identity", Scales},
    {"MatrixOffset", "translates; row 3 contains the translation", Translates},
    {"MatrixRotateX", "rotates y to z for a positive angle in radians", RotatesYToZ},
    {"MatrixRotateY", "rotates z to x for a positive angle in radians", RotatesZToX},
    {"MatrixRotateZ", "rotates x to y for a positive angle in radians", RotatesXToY},
    {"MatrixScale", "and the others return a matrix that first applies the given one", AppliesTheGivenMatrixFirst},
    {"MatrixOffset", "and the others do not change the given matrix", KeepsTheGivenMatrix},
    {"MatrixDispose", "sets the pointer to null", ClearsThePointer},
};

} // namespace

const Topic kMatrixRequirements = TopicOf(kRows);
