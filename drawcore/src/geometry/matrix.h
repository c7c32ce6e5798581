// The affine matrix. Acts on row vectors: p * a * b applies a first.
#pragma once

#include "drawcore/src/geometry/vector.h"

namespace drawcore {

// Sixteen doubles in rows, as the host's matrix record has them: row 3 holds the translation.
struct Matrix {
    double at[4][4] = {{1, 0, 0, 0}, {0, 1, 0, 0}, {0, 0, 1, 0}, {0, 0, 0, 1}};

    static Matrix Translation(const Vec3& by);
    static Matrix Scaling(const Vec3& by);
    static Matrix RotationZ(double radians);
    // The matrix that takes the x, y and z axes to these vectors and the origin to that point.
    static Matrix FromAxes(const Vec3& x, const Vec3& y, const Vec3& z, const Vec3& origin);

    Vec3 Apply(const Vec3& p) const; // a point
    Vec3 Turn(const Vec3& v) const;  // a vector: no translation
    // The plan view of a point: z is dropped after the transformation.
    Point Plan(const Vec3& p) const {
        return {p.x * at[0][0] + p.y * at[1][0] + p.z * at[2][0] + at[3][0],
                p.x * at[0][1] + p.y * at[1][1] + p.z * at[2][1] + at[3][1]};
    }
    // The inverse transformation; false, and nothing is written, if it makes a solid flat.
    bool Invert(Matrix& inverse) const;
    // Whether each axis stays in its direction or turns into the opposite one, so that a box stays a box.
    bool KeepsAxes() const {
        return at[0][1] == 0 && at[0][2] == 0 && at[1][0] == 0 && at[1][2] == 0 && at[2][0] == 0 && at[2][1] == 0;
    }
    // Mean factor by which lengths in the xy plane grow: the square root of the area's factor.
    double PlanScale() const;
};

Matrix operator*(const Matrix& first, const Matrix& then);

} // namespace drawcore
