// Reads and writes little-endian numbers at unaligned addresses. The caller has checked the bounds.
#pragma once

#include <cstdint>
#include <cstring>

namespace orlo {

template <typename Number>
Number LittleEndian(const uint8_t* at) {
    Number value;
    std::memcpy(&value, at, sizeof value);
    return value;
}

template <typename Number>
void PutLittleEndian(uint8_t* at, Number number) {
    std::memcpy(at, &number, sizeof number);
}

} // namespace orlo
