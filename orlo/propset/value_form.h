// The types of a property set: name and form of one element on the stream, in one table. Used inside the
// library.
#pragma once

#include <objidl.h>

#include <cstddef>
#include <cstdint>
#include <optional>

namespace orlo {

enum class Form : uint8_t {
    none,  // has no form, or none that anybody knows
    fixed, // `size` bytes
    bytes, // a 32-bit count of bytes, then the bytes
    chars, // a 32-bit count of 16-bit characters, then the characters
};

struct TypeForm {
    const char* name = nullptr;
    Form form = Form::none;
    uint8_t size = 0;        // of a fixed element
    bool isText = false;     // counted bytes that are a text with its NUL
    bool inProperty = false; // CProperty holds it; the others are only read and written by SetImage
};

inline bool IsVector(uint32_t type) {
    return (type & VT_VECTOR) != 0;
}
inline uint32_t BaseType(uint32_t type) {
    return type & ~uint32_t{VT_VECTOR};
}
inline size_t PaddingOf(size_t size) {
    return (4 - size % 4) % 4;
}

// The form of a type, VT_VECTOR taken away.
const TypeForm& FormOf(uint32_t type);

// Little-endian numbers at any address, as memory has them.
uint16_t Load16(const uint8_t* bytes);
uint32_t Load32(const uint8_t* bytes);
void Store32(uint8_t* bytes, uint32_t number);

// The size of a counted element of which the first four bytes are given, count included.
uint64_t CountedSize(Form form, uint32_t count);

// The size of a stored value of CProperty's types (with VT_VECTOR: the element count and packed elements).
// Nothing if the type has no form there, or the value would leave the block.
std::optional<size_t> StoredSize(uint32_t type, const uint8_t* block, size_t blockSize);

} // namespace orlo
