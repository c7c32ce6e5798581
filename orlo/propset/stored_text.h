// StoredFromText: converts text to the stored form of a value. Internal to the library.
#pragma once

#include <objidl.h>

#include <optional>
#include <vector>

namespace orlo {

// Returns the stored block for the type: from the first token, or from all tokens under VT_VECTOR. Returns nothing if
// the type has no stored form or a token is not a valid value.
std::optional<std::vector<BYTE>> StoredFromText(const char* text, DWORD type);

} // namespace orlo
