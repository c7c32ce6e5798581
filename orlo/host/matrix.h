// Transformations.
//
// All functions except MatrixDispose create a matrix that first applies the given one (null: the identity) and then the
// new transformation. The caller frees the result with MatrixDispose; the given matrix is not changed. They return null
// if memory runs out. reserved is 0.
#pragma once

#include "orlo/host/api.h"
#include "orlo/host/records.h"

// A 4x4 matrix in row-major order that transforms row vectors. Row 3 contains the translation.
typedef struct MatrixStruct {
    double at[4][4];
} MatrixStruct;

// Scales each axis by the corresponding coordinate of `factors`.
// Called: by the Block Insertion page.
// Stub: return null. Lost: nothing, if there are no insertions; otherwise the function is required.
// Failure: null: the insertion is not changed.
DRAWCORE_API MatrixStruct* MatrixScale(const MatrixStruct* matrix, const VertexStruct* factors, int reserved);
// Rotate about an axis by an angle in radians. A positive angle turns y to z, z to x, or x to y.
DRAWCORE_API MatrixStruct* MatrixRotateX(const MatrixStruct* matrix, double angle, int reserved);
DRAWCORE_API MatrixStruct* MatrixRotateY(const MatrixStruct* matrix, double angle, int reserved);
DRAWCORE_API MatrixStruct* MatrixRotateZ(const MatrixStruct* matrix, double angle, int reserved);
// Translates by the coordinates of `by`.
DRAWCORE_API MatrixStruct* MatrixOffset(const MatrixStruct* matrix, const VertexStruct* by);

// Frees the matrix and sets the pointer to null.
// Called: for each matrix that one of these functions has created.
// Stub: do nothing. Lost: nothing, if the other functions are stubs too.
DRAWCORE_API void MatrixDispose(MatrixStruct** matrix);
