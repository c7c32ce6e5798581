// Determines how many bytes at an address are readable, as a limit for pictures that are passed without their length.
#pragma once

#include <cstddef>
#include <cstdint>

namespace orlo {

// A block of memory that the caller owns.
struct Readable {
    const uint8_t* data;
    size_t size; // in bytes
};

// Returns the memory from `address` to the end of the surrounding readable pages, at most 256 MB. All of it can be read
// without a fault, but only a part may belong to the picture.
Readable ReadableFrom(const void* address);

} // namespace orlo
