// Functions of the host contract for matrices.

#include <cmath>
#include <cstring>
#include <new>

#include "drawcore/src/calls/matrix_record.h"
#include "drawcore/src/graphics/vertex.h"
#include "orlo/host/matrix.h"

using namespace drawcore;

namespace {

MatrixStruct* NewAfter(const MatrixStruct* matrix, const Matrix& step) {
    const Matrix product = MatrixFromRecord(matrix) * step;
    auto* result = new (std::nothrow) MatrixStruct;
    if (result) std::memcpy(result->at, product.at, sizeof product.at);
    return result;
}

Vec3 VectorOf(const VertexStruct* vertex, const Vec3& without) {
    return vertex ? Vec3{vertex->x, vertex->y, vertex->z} : without;
}

} // namespace

MatrixStruct* MatrixScale(const MatrixStruct* matrix, const VertexStruct* factors, int) {
    return NewAfter(matrix, Matrix::Scaling(VectorOf(factors, {1, 1, 1})));
}

MatrixStruct* MatrixRotateX(const MatrixStruct* matrix, double angle, int) {
    const double c = std::cos(angle), s = std::sin(angle);
    return NewAfter(matrix, Matrix::FromAxes({1, 0, 0}, {0, c, s}, {0, -s, c}, {}));
}

MatrixStruct* MatrixRotateY(const MatrixStruct* matrix, double angle, int) {
    const double c = std::cos(angle), s = std::sin(angle);
    return NewAfter(matrix, Matrix::FromAxes({c, 0, -s}, {0, 1, 0}, {s, 0, c}, {}));
}

MatrixStruct* MatrixRotateZ(const MatrixStruct* matrix, double angle, int) {
    return NewAfter(matrix, Matrix::RotationZ(angle));
}

MatrixStruct* MatrixOffset(const MatrixStruct* matrix, const VertexStruct* by) {
    return NewAfter(matrix, Matrix::Translation(VectorOf(by, {})));
}

void MatrixDispose(MatrixStruct** matrix) {
    if (!matrix) return;
    delete *matrix;
    *matrix = nullptr;
}
