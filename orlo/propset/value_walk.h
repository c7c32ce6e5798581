// Iterates over the elements of a stored value of any type, including vectors of variants. Internal to the library.
#pragma once

#include <optional>
#include <string_view>

#include "orlo/propset/value_form.h"

namespace orlo {

// The remaining bytes of a value.
struct Cursor {
    const uint8_t* at;
    size_t left;

    const uint8_t* Take(size_t size) {
        if (size > left) return nullptr;
        const uint8_t* start = at;
        at += size;
        left -= size;
        return start;
    }
};

// Takes the bytes of one element other than a variant: of fixed size, or counted, without the count.
inline std::optional<std::string_view> TakeElement(Cursor& cursor, const TypeForm& form) {
    size_t size = form.size;
    if (form.form != Form::fixed) {
        const uint8_t* count = cursor.Take(4);
        const uint64_t counted = count != nullptr ? CountedSize(form.form, LittleEndian<uint32_t>(count)) - 4 : 0;
        if (count == nullptr || counted > cursor.left) return std::nullopt;
        size = static_cast<size_t>(counted);
    }
    if (size > cursor.left) return std::nullopt;
    const uint8_t* bytes = cursor.Take(size); // null for an empty element at the end
    return std::string_view(reinterpret_cast<const char*>(bytes), size);
}

// Returns the minimum size of a vector element, or 0 if there are no vectors of that type.
inline size_t SmallestElement(uint32_t type) {
    const TypeForm& form = FormOf(type);
    if (type == VT_VARIANT || form.form == Form::bytes || form.form == Form::chars) return 4;
    return form.size;
}

inline void SkipPadding(Cursor& cursor, const uint8_t* begin) {
    const size_t padding = PaddingOf(static_cast<size_t>(cursor.at - begin));
    cursor.Take(padding < cursor.left ? padding : cursor.left);
}

// Calls visit(type, form, bytes) for each element of a vector, or for the element of another value; visit may end the
// iteration. Afterward the cursor is at the end of the value.
template <class Visit>
bool Walk(Cursor& cursor, uint32_t type, bool padded, const Visit& visit) {
    const uint8_t* const begin = cursor.at;
    uint32_t count = 1;
    if (IsVector(type)) {
        const uint8_t* head = cursor.Take(4);
        const size_t smallest = SmallestElement(BaseType(type));
        if (head == nullptr || smallest == 0 || LittleEndian<uint32_t>(head) > cursor.left / smallest) return false;
        count = LittleEndian<uint32_t>(head);
    }
    for (; count > 0; --count) {
        if (padded) SkipPadding(cursor, begin);
        uint32_t elementType = BaseType(type);
        if (elementType == VT_VARIANT) {
            const uint8_t* code = IsVector(type) ? cursor.Take(4) : nullptr;
            if (code == nullptr) return false;
            elementType = LittleEndian<uint32_t>(code);
        }
        const TypeForm& form = FormOf(elementType);
        if (form.form == Form::none) return false;
        const std::optional<std::string_view> bytes = TakeElement(cursor, form);
        if (!bytes || !visit(elementType, form, *bytes)) return false;
    }
    return true;
}

// Returns the size of a stored value of a type that CProperty supports (with VT_VECTOR: the element count and packed
// elements). Returns nothing for other types and if the value would exceed the block.
std::optional<size_t> StoredSize(uint32_t type, const uint8_t* block, size_t blockSize);

struct Extent {
    size_t size;         // after the type code, without padding at the end
    bool elementsPadded; // each element is padded to 4 bytes; most writers pack them
};

// Returns the extent of a value that begins at `bytes` and has at most `size` bytes, or nothing if it does not fit or
// the type has no stored form. Allocates no memory.
std::optional<Extent> MeasureValue(uint32_t type, const uint8_t* bytes, size_t size);

} // namespace orlo
