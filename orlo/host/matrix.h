// Transformations: sixteen doubles in rows, acting on row vectors; row 3 holds the translation.
#pragma once

#include "orlo/host/api.h"
#include "orlo/host/records.h"

typedef struct MatrixStruct {
    double at[4][4];
} MatrixStruct;

// Each call gives a new matrix, which MatrixDispose frees: the given one (null: the identity), followed by the step. The
// given one stays the caller's. reserved is 0. Null if there is no memory.
DRAWCORE_API MatrixStruct* MatrixScale(const MatrixStruct*, const VertexStruct* factors, int reserved);
// Radians; a positive angle about z turns x to y, about x turns y to z, about y turns z to x.
DRAWCORE_API MatrixStruct* MatrixRotateX(const MatrixStruct*, double angle, int reserved);
DRAWCORE_API MatrixStruct* MatrixRotateY(const MatrixStruct*, double angle, int reserved);
DRAWCORE_API MatrixStruct* MatrixRotateZ(const MatrixStruct*, double angle, int reserved);
DRAWCORE_API MatrixStruct* MatrixOffset(const MatrixStruct*, const VertexStruct* by);
// Frees the matrix and clears the pointer.
DRAWCORE_API void MatrixDispose(MatrixStruct** matrix);
