// Matrices and insertions, which they place: row vectors, the given matrix first.

#include <cmath>

#include "promise.h"

namespace {

constexpr double kRightAngle = 1.5707963267948966;

struct Point {
    double x, y, z;
};

Point Through(const MatrixStruct& m, const Point& p) {
    double to[3];
    for (int column = 0; column < 3; ++column)
        to[column] = p.x * m.at[0][column] + p.y * m.at[1][column] + p.z * m.at[2][column] + m.at[3][column];
    return {to[0], to[1], to[2]};
}

void ExpectAt(const Point& found, const Point& expected) {
    const double off =
        std::fabs(found.x - expected.x) + std::fabs(found.y - expected.y) + std::fabs(found.z - expected.z);
    Expect(off < 1e-9, "a point comes to %g, %g, %g, not to %g, %g, %g", found.x, found.y, found.z,
           expected.x, expected.y, expected.z);
}

void Scales(const Subject& s) {
    const auto factors = s.NewVertex(2, 3, 4);
    const auto matrix = s.Own(CALL(s.host, MatrixScale)(nullptr, factors.get(), 0));
    ExpectAt(Through(*matrix, {1, 1, 1}), {2, 3, 4});
}

void Moves(const Subject& s) {
    const auto by = s.NewVertex(2, 3, 4);
    const auto matrix = s.Own(CALL(s.host, MatrixOffset)(nullptr, by.get()));
    ExpectAt(Through(*matrix, {1, 1, 1}), {3, 4, 5});
}

void TurnsYToZ(const Subject& s) {
    ExpectAt(Through(*s.Own(CALL(s.host, MatrixRotateX)(nullptr, kRightAngle, 0)), {1, 2, 0}), {1, 0, 2});
}
void TurnsZToX(const Subject& s) {
    ExpectAt(Through(*s.Own(CALL(s.host, MatrixRotateY)(nullptr, kRightAngle, 0)), {0, 1, 2}), {2, 1, 0});
}
void TurnsXToY(const Subject& s) {
    ExpectAt(Through(*s.Own(CALL(s.host, MatrixRotateZ)(nullptr, kRightAngle, 0)), {2, 0, 1}), {0, 2, 1});
}

void FollowsTheGivenOne(const Subject& s) {
    const auto by = s.NewVertex(1, 0, 0), factors = s.NewVertex(5, 5, 5);
    const auto first = s.Own(CALL(s.host, MatrixOffset)(nullptr, by.get()));
    const auto both = s.Own(CALL(s.host, MatrixScale)(first.get(), factors.get(), 0));
    ExpectAt(Through(*both, {1, 1, 1}), {10, 5, 5});
    ExpectAt(Through(*first, {1, 1, 1}), {2, 1, 1});
}

void ClearsThePointer(const Subject& s) {
    const auto by = s.NewVertex(1, 0, 0);
    MatrixStruct* matrix = CALL(s.host, MatrixOffset)(nullptr, by.get());
    CALL(s.host, MatrixDispose)(&matrix);
    Expect(!matrix, "left %p", static_cast<void*>(matrix));
}

constexpr Promise kRows[] = {
    {"MatrixScale", "scales along the axes, from the identity for null", Scales},
    {"MatrixOffset", "moves; row 3 holds the translation", Moves},
    {"MatrixRotateX", "turns y to z by a positive angle in radians", TurnsYToZ},
    {"MatrixRotateY", "turns z to x by a positive angle in radians", TurnsZToX},
    {"MatrixRotateZ", "turns x to y by a positive angle in radians", TurnsXToY},
    {"MatrixScale", "gives a new matrix: the given one, followed by the step", FollowsTheGivenOne},
    {"MatrixDispose", "clears the pointer", ClearsThePointer},
};

} // namespace

const Topic kMatrixPromises = TopicOf(kRows);
