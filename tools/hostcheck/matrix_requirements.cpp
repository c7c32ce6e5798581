// Requirements of matrices: row vectors; the given matrix is applied first.

#include <cmath>

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

void Scales(const Subject& s) {
    const auto factors = s.NewVertex(2, 3, 4);
    const auto matrix = s.Own(CALL(s.host, MatrixScale)(nullptr, factors.get(), 0));
    RequireAt(Transform(*matrix, {1, 1, 1}), {2, 3, 4});
}

void Translates(const Subject& s) {
    const auto by = s.NewVertex(2, 3, 4);
    const auto matrix = s.Own(CALL(s.host, MatrixOffset)(nullptr, by.get()));
    RequireAt(Transform(*matrix, {1, 1, 1}), {3, 4, 5});
}

void TurnsYToZ(const Subject& s) {
    RequireAt(Transform(*s.Own(CALL(s.host, MatrixRotateX)(nullptr, kRightAngle, 0)), {1, 2, 0}), {1, 0, 2});
}
void TurnsZToX(const Subject& s) {
    RequireAt(Transform(*s.Own(CALL(s.host, MatrixRotateY)(nullptr, kRightAngle, 0)), {0, 1, 2}), {2, 1, 0});
}
void TurnsXToY(const Subject& s) {
    RequireAt(Transform(*s.Own(CALL(s.host, MatrixRotateZ)(nullptr, kRightAngle, 0)), {2, 0, 1}), {0, 2, 1});
}

void AppliesTheGivenMatrixFirst(const Subject& s) {
    const auto by = s.NewVertex(1, 0, 0), factors = s.NewVertex(5, 5, 5);
    const auto first = s.Own(CALL(s.host, MatrixOffset)(nullptr, by.get()));
    const auto both = s.Own(CALL(s.host, MatrixScale)(first.get(), factors.get(), 0));
    RequireAt(Transform(*both, {1, 1, 1}), {10, 5, 5});
    RequireAt(Transform(*first, {1, 1, 1}), {2, 1, 1});
}

void ClearsThePointer(const Subject& s) {
    const auto by = s.NewVertex(1, 0, 0);
    MatrixStruct* matrix = CALL(s.host, MatrixOffset)(nullptr, by.get());
    CALL(s.host, MatrixDispose)(&matrix);
    Require(!matrix, "the pointer is %p afterwards", static_cast<void*>(matrix));
}

constexpr Requirement kRows[] = {
    {"MatrixScale", "scales along the axes; null is the identity", Scales},
    {"MatrixOffset", "translates; row 3 contains the translation", Translates},
    {"MatrixRotateX", "turns y to z for a positive angle in radians", TurnsYToZ},
    {"MatrixRotateY", "turns z to x for a positive angle in radians", TurnsZToX},
    {"MatrixRotateZ", "turns x to y for a positive angle in radians", TurnsXToY},
    {"MatrixScale", "returns a new matrix that applies the given one first", AppliesTheGivenMatrixFirst},
    {"MatrixDispose", "sets the pointer to null", ClearsThePointer},
};

} // namespace

const Topic kMatrixRequirements = TopicOf(kRows);
