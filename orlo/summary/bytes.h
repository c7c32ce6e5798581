// Little-endian numbers at unaligned places of a block of bytes. The caller has checked that they are there.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>

namespace orlo {

template <typename Number>
Number LittleEndian(const uint8_t* at) {
    Number value;
    std::memcpy(&value, at, sizeof value);
    return value;
}

} // namespace orlo
