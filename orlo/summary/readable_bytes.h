// How many bytes from an address on can be read: the limit for pictures that are handed over without their
// length.
#pragma once

#include <cstddef>
#include <cstdint>

namespace orlo {

// A block of memory that the caller owns.
struct Readable {
    const uint8_t* data;
    size_t size; // bytes
};

// The memory from `address` to the end of the readable pages around it, at most 256 MB. It says what may
// be read without a fault, not what belongs to the picture.
Readable ReadableFrom(const void* address);

} // namespace orlo
