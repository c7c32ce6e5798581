// Ties inserts to their blocks so that whoever walks the drawing needs no care: afterwards every reference is
// to an existing block, no block contains itself, nesting is shallow, and all inserts together draw a
// bounded number of parts. A reference that would break this is cut (its block becomes none), and a finding
// says so.
#pragma once

#include "drawcore/src/dxf/record_reader.h"

namespace dxf {

constexpr size_t kDeepestNesting = 64;
constexpr double kMostInsertedParts = 2e6; // lines, vertices and the like; and in a large file
constexpr double kMorePartsPerEntity = 16; // so many more for each entity that it holds

void ResolveReferences(RecordReader& in);

} // namespace dxf
