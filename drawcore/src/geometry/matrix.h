// An affine matrix that transforms row vectors: p * a * b applies a first.
#pragma once

#include "drawcore/src/geometry/vector.h"

namespace drawcore {

// Sixteen doubles in row-major order, as in the host's matrix record: row 3 is the translation.
struct Matrix {
    double at[4][4] = {{1, 0, 0, 0}, {0, 1, 0, 0}, {0, 0, 1, 0}, {0, 0, 0, 1}};

    static Matrix Translation(const Vec3& by);
    static Matrix Scaling(const Vec3& by);
    static Matrix RotationZ(double radians);
    // Returns the matrix that maps the x, y and z axes to these vectors and the origin to that point.
    static Matrix FromAxes(const Vec3& x, const Vec3& y, const Vec3& z, const Vec3& origin);

    Vec3 Apply(const Vec3& p) const;         // transforms a point
    Vec3 ApplyToVector(const Vec3& v) const; // transforms a vector, without translation
    // Transforms a point and drops its z coordinate.
    Point Plan(const Vec3& p) const {
        return {p.x * at[0][0] + p.y * at[1][0] + p.z * at[2][0] + at[3][0],
                p.x * at[0][1] + p.y * at[1][1] + p.z * at[2][1] + at[3][1]};
    }
    // Computes the inverse. Returns false and leaves `inverse` unchanged if the matrix is singular.
    bool Invert(Matrix& inverse) const;
    // Returns whether each axis keeps or reverses its direction, so that a box remains a box.
    bool KeepsAxes() const {
        return at[0][1] == 0 && at[0][2] == 0 && at[1][0] == 0 && at[1][2] == 0 && at[2][0] == 0 && at[2][1] == 0;
    }
    // Returns the mean scale factor of lengths in the xy plane: the square root of the area's factor.
    double PlanScale() const;
};

Matrix operator*(const Matrix& first, const Matrix& then);

} // namespace drawcore
