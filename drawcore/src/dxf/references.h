// Resolves the references of insertions to blocks, so that the drawing can be traversed safely: afterward, every
// reference is to an existing block, no block contains itself, nesting is limited, and all insertions together draw a
// limited number of parts. A reference that violates this is removed and reported as a warning.
#pragma once

#include "drawcore/src/dxf/record_reader.h"

namespace dxf {

constexpr size_t kDeepestNesting = 64;
constexpr double kMaxInsertedParts = 2e6;      // number of lines, vertices and similar parts
constexpr double kInsertedPartsPerEntity = 16; // additional parts per entity of the file

void ResolveReferences(RecordReader& in);

} // namespace dxf
