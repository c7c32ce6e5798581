// StoredFromText: a value's stored form from the tokens of a text. Used inside the library.
#pragma once

#include <objidl.h>

#include <optional>
#include <vector>

namespace orlo {

// The block of a property of that type: the first token, or all tokens under VT_VECTOR. Nothing if the type
// has no form or a token can't be one of its values.
std::optional<std::vector<BYTE>> StoredFromText(const char* text, DWORD type);

} // namespace orlo
