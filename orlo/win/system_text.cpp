// Conversion between wide text and text in the code page of the system.

#include "orlo/win/system_text.h"

#include <windows.h>

std::wstring Wide(const char* text) {
    const int length = ::MultiByteToWideChar(CP_ACP, 0, text, -1, nullptr, 0);
    std::wstring wide(length > 0 ? static_cast<size_t>(length) : 1, L'\0');
    ::MultiByteToWideChar(CP_ACP, 0, text, -1, wide.data(), length);
    wide.pop_back(); // the NUL that was counted
    return wide;
}

void Narrow(const wchar_t* text, char* buffer, int size) {
    ::WideCharToMultiByte(CP_ACP, 0, text, -1, buffer, size, " ", nullptr);
    buffer[size - 1] = '\0';
}
