// Converts encodings with the system's functions.
#include "drawcore/src/database/encoding.h"

#include <cstdio>

#include <windows.h>

namespace drawcore {

namespace {

std::wstring Utf16(std::string_view text, UINT page) {
    const int size = static_cast<int>(text.size());
    std::wstring wide(text.size(), L'\0'); // a byte becomes at most one unit
    wide.resize(static_cast<size_t>(::MultiByteToWideChar(page, 0, text.data(), size, wide.data(), size)));
    return wide;
}

} // namespace

std::wstring Utf16FromUtf8(std::string_view text) {
    return Utf16(text, CP_UTF8);
}

std::wstring Utf16FromCodePage(std::string_view text) {
    return Utf16(text, CP_ACP);
}

std::string Utf8FromUtf16(std::wstring_view text) {
    std::string narrow(text.size() * 3, '\0'); // a unit becomes at most three bytes
    const int size = ::WideCharToMultiByte(CP_UTF8, 0, text.data(), static_cast<int>(text.size()), narrow.data(),
                                           static_cast<int>(narrow.size()), nullptr, nullptr);
    narrow.resize(static_cast<size_t>(size));
    return narrow;
}

std::string Utf8FromCodePage(std::string_view text) {
    return Utf8FromUtf16(Utf16FromCodePage(text));
}

std::string CodePageFromUtf8(std::string_view text) {
    if (::GetACP() == CP_UTF8) return std::string(text);
    std::string narrow;
    for (const wchar_t unit : Utf16FromUtf8(text)) {
        char bytes[16];
        BOOL lacks = FALSE;
        const int size =
            ::WideCharToMultiByte(CP_ACP, WC_NO_BEST_FIT_CHARS, &unit, 1, bytes, sizeof bytes, nullptr, &lacks);
        if (size > 0 && !lacks) {
            narrow.append(bytes, static_cast<size_t>(size));
        } else {
            std::snprintf(bytes, sizeof bytes, "\\U+%04X", static_cast<unsigned>(unit));
            narrow += bytes;
        }
    }
    return narrow;
}

} // namespace drawcore
