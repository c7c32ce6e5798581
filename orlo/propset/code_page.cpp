#include "orlo/propset/code_page.h"

#include <objidl.h>

#include <algorithm>

namespace orlo {

namespace {

int Length(size_t size) {
    return size <= INT_MAX ? static_cast<int>(size) : 0;
}

// Nothing where the bytes are no text. The system makes control characters of the bytes that a code page of
// Windows leaves undefined; those are no text either.
std::optional<std::wstring> ToWide(std::string_view text, UINT codePage) {
    if (text.empty()) return std::wstring();
    const int length =
        ::MultiByteToWideChar(codePage, MB_ERR_INVALID_CHARS, text.data(), Length(text.size()), nullptr, 0);
    if (length <= 0) return std::nullopt;
    std::wstring wide(static_cast<size_t>(length), L'\0');
    ::MultiByteToWideChar(codePage, MB_ERR_INVALID_CHARS, text.data(), Length(text.size()), wide.data(),
                          length);
    const auto isUndefined = [](wchar_t c) { return c >= 0x80 && c < 0xA0; };
    const bool isOfWindows = codePage == CP_ACP || codePage == 874 || (codePage >= 1250 && codePage <= 1258);
    if (isOfWindows && std::any_of(wide.begin(), wide.end(), isUndefined)) return std::nullopt;
    return wide;
}

std::optional<std::string> FromWide(std::wstring_view wide, UINT codePage) {
    if (wide.empty()) return std::string();
    const bool isUtf8 = codePage == CP_UTF8;
    const DWORD flags = isUtf8 ? WC_ERR_INVALID_CHARS : WC_NO_BEST_FIT_CHARS;
    BOOL replaced = FALSE;
    BOOL* const sayReplaced = isUtf8 ? nullptr : &replaced;
    const int size = ::WideCharToMultiByte(codePage, flags, wide.data(), Length(wide.size()), nullptr, 0,
                                           nullptr, sayReplaced);
    if (size <= 0 || replaced) return std::nullopt;
    std::string text(static_cast<size_t>(size), '\0');
    ::WideCharToMultiByte(codePage, flags, wide.data(), Length(wide.size()), text.data(), size, nullptr,
                          sayReplaced);
    return text;
}

} // namespace

std::optional<std::string> CodePageToUtf8(std::string_view text, uint16_t codePage) {
    if (codePage != kCodePageUtf16) {
        const std::optional<std::wstring> wide = ToWide(text, codePage);
        return wide ? FromWide(*wide, CP_UTF8) : std::nullopt;
    }
    std::wstring wide(text.size() / 2, L'\0');
    std::copy_n(text.data(), wide.size() * 2, reinterpret_cast<char*>(wide.data()));
    return FromWide(wide, CP_UTF8);
}

std::optional<std::string> Utf8ToCodePage(std::string_view utf8, uint16_t codePage) {
    const std::optional<std::wstring> wide = ToWide(utf8, CP_UTF8);
    if (!wide) return std::nullopt;
    if (codePage != kCodePageUtf16) return FromWide(*wide, codePage);
    return std::string(reinterpret_cast<const char*>(wide->data()), wide->size() * 2);
}

} // namespace orlo
