// The value types of property sets: name and stored form, in one table. Internal to the library.
#pragma once

#include <objidl.h>

#include "orlo/propset/bytes.h"

namespace orlo {

enum class Form : uint8_t {
    none,  // no known stored form
    fixed, // `size` bytes
    bytes, // a 32-bit count of bytes, then the bytes
    chars, // a 32-bit count of 16-bit characters, then the characters
};

struct TypeForm {
    const char* name = nullptr;
    Form form = Form::none;
    uint8_t size = 0;        // for a fixed form
    bool isText = false;     // the counted bytes are text with a NUL
    bool inProperty = false; // supported by CProperty; the others only by SetImage
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

// Returns the form of a type, ignoring VT_VECTOR.
const TypeForm& FormOf(uint32_t type);

// Returns the size of a counted element, including its count.
uint64_t CountedSize(Form form, uint32_t count);

} // namespace orlo
