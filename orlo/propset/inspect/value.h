// Value: what a property's bytes mean, in plain terms, for programs that show or edit property sets.
//
//   Value value;
//   if (DecodeValue(VT_LPSTR, bytes, size, 1252, value)) ... std::get<std::string>(value.data) is UTF-8 ...
//   DecodeValue(VT_DISPATCH, ...)   false: that type has no form on a stream
#pragma once

#include <objidl.h>

#include <cstdint>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "orlo/export.h"

namespace orlo {

// Bytes of a blob; owned.
using Bytes = std::vector<uint8_t>;

// A clipboard format: tag -1 names a format number of Windows, -2 one of the Macintosh, 0 none; other tags
// (-3 a format ID, above 0 the length of a name) leave format 0 and the naming bytes at the head of the data.
struct ClipboardData {
    int32_t tag;
    uint32_t format;
    Bytes data;
};

struct Value {
    uint32_t type = VT_EMPTY; // with VT_VECTOR for a list
    // By type: nothing (VT_EMPTY, VT_NULL), bool, signed numbers (I1, I2, I4, INT, ERROR, I8, CY in 1/10000),
    // unsigned numbers (UI1, UI2, UI4, UINT, UI8, FILETIME in 100 ns), double (R4, R8, DATE in days), UTF-8
    // text up to the first NUL (LPSTR, BSTR, LPWSTR, the stream and storage names), bytes (BLOB, DECIMAL, the
    // rest), clipboard data, GUID.
    std::variant<std::monostate, bool, int64_t, uint64_t, double, std::string, Bytes, ClipboardData, GUID> data;
    std::vector<Value> elements; // of a vector; their own types differ only under VT_VARIANT
};

// Reads a value from the bytes after its type code. False: no such type, bytes missing, or a text that is
// not valid in the code page (1252 where the section names none). Elements of a vector may be padded to 4 bytes
// each, as a few writers do.
ORLO_API bool DecodeValue(uint32_t type, const uint8_t* bytes, size_t size, std::optional<uint16_t> codePage,
                          Value& value);

// The bytes after the type code, without padding at the end; nothing if the type has no form or the code
// page can't represent a text. Texts get their length and NUL; elements of a vector are packed.
ORLO_API std::optional<Bytes> EncodeValue(const Value& value, std::optional<uint16_t> codePage);

// "{XXXXXXXX-XXXX-XXXX-XXXX-XXXXXXXXXXXX}".
ORLO_API std::string GuidText(const GUID& guid);
// "VT_LPSTR", "VT_VECTOR | VT_I4", or "type 0x0019".
ORLO_API std::string TypeName(uint32_t type);

} // namespace orlo
