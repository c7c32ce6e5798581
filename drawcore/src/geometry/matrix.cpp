// Products, inverses and application of matrices.
#include "drawcore/src/geometry/matrix.h"

#include <cmath>

namespace drawcore {

Matrix Matrix::Translation(const Vec3& by) {
    return FromAxes({1, 0, 0}, {0, 1, 0}, {0, 0, 1}, by);
}

Matrix Matrix::Scaling(const Vec3& by) {
    return FromAxes({by.x, 0, 0}, {0, by.y, 0}, {0, 0, by.z}, {});
}

Matrix Matrix::RotationZ(double radians) {
    const double c = std::cos(radians), s = std::sin(radians);
    return FromAxes({c, s, 0}, {-s, c, 0}, {0, 0, 1}, {});
}

Matrix Matrix::FromAxes(const Vec3& x, const Vec3& y, const Vec3& z, const Vec3& origin) {
    const Vec3* rows[4] = {&x, &y, &z, &origin};
    Matrix m;
    for (int r = 0; r < 4; ++r) {
        m.at[r][0] = rows[r]->x;
        m.at[r][1] = rows[r]->y;
        m.at[r][2] = rows[r]->z;
    }
    return m;
}

Vec3 Matrix::Apply(const Vec3& p) const {
    const Vec3 vector = ApplyToVector(p);
    return {vector.x + at[3][0], vector.y + at[3][1], vector.z + at[3][2]};
}

Vec3 Matrix::ApplyToVector(const Vec3& v) const {
    return {v.x * at[0][0] + v.y * at[1][0] + v.z * at[2][0], v.x * at[0][1] + v.y * at[1][1] + v.z * at[2][1],
            v.x * at[0][2] + v.y * at[1][2] + v.z * at[2][2]};
}

bool Matrix::Invert(Matrix& inverse) const {
    const Vec3 x{at[0][0], at[0][1], at[0][2]}, y{at[1][0], at[1][1], at[1][2]}, z{at[2][0], at[2][1], at[2][2]};
    const Vec3 columns[3] = {Cross(y, z), Cross(z, x), Cross(x, y)};
    const double volume = x.x * columns[0].x + x.y * columns[0].y + x.z * columns[0].z;
    if (!std::isnormal(volume) || !std::isfinite(1 / volume)) return false;
    Matrix back;
    for (int c = 0; c < 3; ++c) {
        back.at[0][c] = columns[c].x / volume;
        back.at[1][c] = columns[c].y / volume;
        back.at[2][c] = columns[c].z / volume;
    }
    const Vec3 origin = back.ApplyToVector({at[3][0], at[3][1], at[3][2]});
    inverse = back * Translation(origin * -1);
    return true;
}

double Matrix::PlanScale() const {
    return std::sqrt(std::fabs(at[0][0] * at[1][1] - at[0][1] * at[1][0]));
}

Matrix operator*(const Matrix& first, const Matrix& then) {
    Matrix product;
    for (int r = 0; r < 4; ++r)
        for (int c = 0; c < 4; ++c) {
            double sum = 0;
            for (int k = 0; k < 4; ++k)
                sum += first.at[r][k] * then.at[k][c];
            product.at[r][c] = sum;
        }
    return product;
}

} // namespace drawcore
