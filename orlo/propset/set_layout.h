// Sizes of the parts of a property set stream. Internal to the library.
#pragma once

#include <objidl.h>

#include <cstddef>
#include <cstdint>
#include <cstring>

namespace orlo {

constexpr uint16_t kLittleEndianMark = 0xFFFE;
constexpr size_t kSetHeadSize = 28;     // byte order, versions, class, number of sections
constexpr size_t kSectionLineSize = 20; // an entry in the list of sections: format ID and offset
constexpr size_t kSectionHeadSize = 8;  // size and number of properties
constexpr size_t kPropertyLineSize = 8; // an entry in a section's table: ID and offset
constexpr size_t kTypeSize = 4;         // precedes a value
constexpr uint32_t kDictionaryId = 0;

inline bool IsSame(const GUID& a, const GUID& b) {
    return std::memcmp(&a, &b, sizeof(GUID)) == 0;
}

} // namespace orlo
