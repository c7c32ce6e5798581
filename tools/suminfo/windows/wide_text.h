// Text at the edges of Windows, which has it in 16-bit characters.
#pragma once

#include <string>
#include <string_view>

#include "orlo/win/encoded_text.h"

namespace suminfo {

inline std::string ToUtf8(std::wstring_view wide) {
    return orlo::Narrow(wide, CP_UTF8);
}
inline std::wstring ToWide(std::string_view utf8) {
    return orlo::Widen(utf8, CP_UTF8);
}

} // namespace suminfo
