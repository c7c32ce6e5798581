#include "orlo/win/system_text.h"

#include <windows.h>

std::wstring Wide(const char* text) {
    const int length = ::MultiByteToWideChar(CP_ACP, 0, text, -1, nullptr, 0);
    std::wstring wide(length > 0 ? static_cast<size_t>(length) : 1, L'\0');
    ::MultiByteToWideChar(CP_ACP, 0, text, -1, wide.data(), length);
    wide.pop_back(); // the NUL that was counted
    return wide;
}
