// Value: the decoded value of a property, for programs that show or edit property sets.
//
//   Value value;
//   if (DecodeValue(VT_LPSTR, bytes, size, 1252, value)) ... std::get<std::string>(value.data) is UTF-8 ...
//   DecodeValue(VT_DISPATCH, ...)   returns false: the type has no stored form
#pragma once

#include <objidl.h>

#include <cstdint>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "orlo/export.h"

namespace orlo {

// The bytes of a blob.
using Bytes = std::vector<uint8_t>;

// A clipboard format: tag -1 precedes a Windows format number, -2 a Macintosh one, 0 none. For other tags (-3: a format
// ID, positive: the length of a name) format is 0 and the data begins with the ID or name.
struct ClipboardData {
    int32_t tag;
    uint32_t format;
    Bytes data;
};

struct Value {
    uint32_t type = VT_EMPTY; // combined with VT_VECTOR for a list
    // Depending on the type: empty (VT_EMPTY, VT_NULL), bool, signed integers (I1, I2, I4, INT, ERROR, I8, CY in
    // 1/10000), unsigned integers (UI1, UI2, UI4, UINT, UI8, FILETIME in 100 ns), double (R4, R8, DATE in days), UTF-8
    // text up to the first NUL (LPSTR, BSTR, LPWSTR, stream and storage names), bytes (BLOB, DECIMAL, all others),
    // clipboard data, GUID.
    std::variant<std::monostate, bool, int64_t, uint64_t, double, std::string, Bytes, ClipboardData, GUID> data;
    std::vector<Value> elements; // of a vector; they have different types only under VT_VARIANT
};

// Decodes a value from the bytes that follow its type code. Returns false if the type is unknown, bytes are missing, or
// a text is not valid in the code page (1252 if the section has none). Accepts vectors whose elements are padded to 4
// bytes each, as a few writers produce.
ORLO_API bool DecodeValue(uint32_t type, const uint8_t* bytes, size_t size, std::optional<uint16_t> codePage,
                          Value& value);

// Returns the bytes to store after the type code, without padding at the end, or nothing if the type has no stored form
// or the code page cannot represent a text. Texts include their length and NUL; elements of a vector are packed.
ORLO_API std::optional<Bytes> EncodeValue(const Value& value, std::optional<uint16_t> codePage);

// Returns whether the values of a type are stored as int64_t or as uint64_t.
bool IsSignedType(uint32_t type);
bool IsUnsignedType(uint32_t type);

// Returns "{XXXXXXXX-XXXX-XXXX-XXXX-XXXXXXXXXXXX}".
ORLO_API std::string GuidText(const GUID& guid);
// Returns "VT_LPSTR", "VT_VECTOR | VT_I4", or "type 0x0019".
ORLO_API std::string TypeName(uint32_t type);

} // namespace orlo
