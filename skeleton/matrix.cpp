// Transformations of row vectors. The result first applies the given matrix, then the function's own transformation.

#include <cmath>
#include <new>

#include "database.h"

namespace {

constexpr MatrixStruct kIdentity = {{{1, 0, 0, 0}, {0, 1, 0, 0}, {0, 0, 1, 0}, {0, 0, 0, 1}}};

MatrixStruct* AppliedBefore(const MatrixStruct* matrix, const MatrixStruct& step) {
    auto* product = new (std::nothrow) MatrixStruct{};
    if (!product) return nullptr;
    const MatrixStruct& first = matrix ? *matrix : kIdentity;
    for (int row = 0; row < 4; ++row)
        for (int column = 0; column < 4; ++column)
            for (int k = 0; k < 4; ++k)
                product->at[row][column] += first.at[row][k] * step.at[k][column];
    return product;
}

// Rotates the axis `from` toward the axis `to`.
MatrixStruct* Rotated(const MatrixStruct* matrix, int from, int to, double angle) {
    MatrixStruct step = kIdentity;
    step.at[from][from] = step.at[to][to] = std::cos(angle);
    step.at[from][to] = std::sin(angle);
    step.at[to][from] = -std::sin(angle);
    return AppliedBefore(matrix, step);
}

} // namespace

MatrixStruct* MatrixScale(const MatrixStruct* matrix, const VertexStruct* factors, int) {
    MatrixStruct step = kIdentity;
    step.at[0][0] = factors->x;
    step.at[1][1] = factors->y;
    step.at[2][2] = factors->z;
    return AppliedBefore(matrix, step);
}

MatrixStruct* MatrixRotateX(const MatrixStruct* matrix, double angle, int) {
    return Rotated(matrix, 1, 2, angle);
}

MatrixStruct* MatrixRotateY(const MatrixStruct* matrix, double angle, int) {
    return Rotated(matrix, 2, 0, angle);
}

MatrixStruct* MatrixRotateZ(const MatrixStruct* matrix, double angle, int) {
    return Rotated(matrix, 0, 1, angle);
}

MatrixStruct* MatrixOffset(const MatrixStruct* matrix, const VertexStruct* by) {
    MatrixStruct step = kIdentity;
    step.at[3][0] = by->x;
    step.at[3][1] = by->y;
    step.at[3][2] = by->z;
    return AppliedBefore(matrix, step);
}

void MatrixDispose(MatrixStruct** matrix) {
    if (!matrix) return;
    delete *matrix;
    *matrix = nullptr;
}
