// Looks through the structure of a compound file before the system opens it: on chains that go in circles the system may
// turn for ever. Reads no stream and needs no window header.
//
//   CheckCompoundFile(reader, size)   // sound: it may be written too
//                                     // unsafe: opening it may never come back
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>

#include "orlo/export.h"

namespace orlo {

enum class CompoundState {
    foreign, // no compound file
    sound,
    torn,  // sectors are missing or belong to two: what is there can be read, and nothing should be written
    unsafe // a chain of sectors or the tree of the directory runs in circles
};

// Stores `size` bytes from `offset` of the file; false if they aren't there.
using ReadAt = std::function<bool(uint64_t offset, void* buffer, size_t size)>;

// The file has `size` bytes. Memory and time grow with the number of its sectors.
ORLO_API CompoundState CheckCompoundFile(const ReadAt& read, uint64_t size);

} // namespace orlo
