// Functions of the host contract for matrices.

#include <cmath>
#include <cstring>
#include <new>

#include "drawcore/src/calls/matrix_record.h"
#include "drawcore/src/graphics/vertex.h"
#include "orlo/host/matrix.h"

using namespace drawcore;

namespace {

MatrixStruct* NewAfter(const MatrixStruct* given, const Matrix& step) {
    const Matrix product = MatrixFromRecord(given) * step;
    auto* made = new (std::nothrow) MatrixStruct;
    if (made) std::memcpy(made->at, product.at, sizeof product.at);
    return made;
}

Vec3 VectorOf(const VertexStruct* vertex, const Vec3& without) {
    return vertex ? Vec3{vertex->x, vertex->y, vertex->z} : without;
}

} // namespace

MatrixStruct* MatrixScale(const MatrixStruct* given, const VertexStruct* factors, int) {
    return NewAfter(given, Matrix::Scaling(VectorOf(factors, {1, 1, 1})));
}

MatrixStruct* MatrixRotateX(const MatrixStruct* given, double angle, int) {
    const double c = std::cos(angle), s = std::sin(angle);
    return NewAfter(given, Matrix::FromAxes({1, 0, 0}, {0, c, s}, {0, -s, c}, {}));
}

MatrixStruct* MatrixRotateY(const MatrixStruct* given, double angle, int) {
    const double c = std::cos(angle), s = std::sin(angle);
    return NewAfter(given, Matrix::FromAxes({c, 0, -s}, {0, 1, 0}, {s, 0, c}, {}));
}

MatrixStruct* MatrixRotateZ(const MatrixStruct* given, double angle, int) {
    return NewAfter(given, Matrix::RotationZ(angle));
}

MatrixStruct* MatrixOffset(const MatrixStruct* given, const VertexStruct* by) {
    return NewAfter(given, Matrix::Translation(VectorOf(by, {})));
}

void MatrixDispose(MatrixStruct** matrix) {
    if (!matrix) return;
    delete *matrix;
    *matrix = nullptr;
}
