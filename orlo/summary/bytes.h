// Reads little-endian numbers at unaligned addresses. The caller has checked the bounds.
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
