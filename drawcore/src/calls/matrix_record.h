// The host's matrix record.
#pragma once

#include <cstring>

#include "drawcore/src/geometry/matrix.h"
#include "orlo/host/matrix.h"

namespace drawcore {

// Returns the matrix of a record; the identity for null.
inline Matrix MatrixFromRecord(const MatrixStruct* record) {
    Matrix matrix;
    if (record) std::memcpy(matrix.at, record->at, sizeof matrix.at);
    return matrix;
}

} // namespace drawcore
