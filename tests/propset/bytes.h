// Byte literals for tests.
#pragma once

#include <cstdint>
#include <cstring>
#include <string>
#include <vector>

using Bytes = std::vector<uint8_t>;

// "0a0b 0c"_hex; blanks are ignored.
inline Bytes operator""_hex(const char* digits, size_t size) {
    Bytes bytes;
    for (size_t i = 0; i + 1 < size; ++i)
        if (digits[i] != ' ')
            bytes.push_back(static_cast<uint8_t>(std::stoul(std::string(digits + i++, 2), nullptr, 16)));
    return bytes;
}

inline Bytes operator+(Bytes a, const Bytes& b) {
    a.insert(a.end(), b.begin(), b.end());
    return a;
}

// Returns the first `size` bytes.
inline Bytes UpTo(size_t size, const Bytes& bytes) {
    return Bytes(bytes.begin(), bytes.begin() + static_cast<ptrdiff_t>(size));
}

inline Bytes LittleEndian(uint32_t number) {
    Bytes bytes(4);
    std::memcpy(bytes.data(), &number, 4);
    return bytes;
}
