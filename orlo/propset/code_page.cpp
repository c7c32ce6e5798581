// Converts code pages with the system's tables.

#include "orlo/propset/code_page.h"

#include <objidl.h>

#include <algorithm>

namespace orlo {

namespace {

int Length(size_t size) {
    return size <= INT_MAX ? static_cast<int>(size) : 0;
}

std::wstring Widened(std::string_view text, UINT codePage, DWORD flags) {
    const int size = Length(text.size());
    std::wstring wide(
        static_cast<size_t>(std::max(0, ::MultiByteToWideChar(codePage, flags, text.data(), size, nullptr, 0))), L'\0');
    ::MultiByteToWideChar(codePage, flags, text.data(), size, wide.data(), Length(wide.size()));
    return wide;
}

std::string Narrowed(std::wstring_view wide, UINT codePage, DWORD flags, BOOL* replaced) {
    const int length = Length(wide.size());
    const int size = ::WideCharToMultiByte(codePage, flags, wide.data(), length, nullptr, 0, nullptr, replaced);
    std::string text(static_cast<size_t>(std::max(0, size)), '\0');
    ::WideCharToMultiByte(codePage, flags, wide.data(), length, text.data(), Length(text.size()), nullptr, replaced);
    return text;
}

// Returns nothing if the bytes are not text. The system converts bytes that a Windows code page leaves undefined to
// control characters, which are not accepted as text either.
std::optional<std::wstring> CheckedToWide(std::string_view text, UINT codePage) {
    std::wstring wide = Widened(text, codePage, MB_ERR_INVALID_CHARS);
    if (wide.empty() && !text.empty()) return std::nullopt;
    const auto isUndefined = [](wchar_t c) { return c >= 0x80 && c < 0xA0; };
    const bool isOfWindows = codePage == CP_ACP || codePage == 874 || (codePage >= 1250 && codePage <= 1258);
    if (isOfWindows && std::any_of(wide.begin(), wide.end(), isUndefined)) return std::nullopt;
    return wide;
}

std::optional<std::string> CheckedFromWide(std::wstring_view wide, UINT codePage) {
    const bool isUtf8 = codePage == CP_UTF8;
    BOOL replaced = FALSE;
    std::string text =
        Narrowed(wide, codePage, isUtf8 ? WC_ERR_INVALID_CHARS : WC_NO_BEST_FIT_CHARS, isUtf8 ? nullptr : &replaced);
    if (replaced || (text.empty() && !wide.empty())) return std::nullopt;
    return text;
}

int Compare(std::wstring_view a, std::wstring_view b) {
    return ::CompareStringOrdinal(a.data(), Length(a.size()), b.data(), Length(b.size()), TRUE) - CSTR_EQUAL;
}

} // namespace

std::optional<std::string> CodePageToUtf8(std::string_view text, uint16_t codePage) {
    if (IsPlainText(text, codePage)) return std::string(text);
    if (codePage != kCodePageUtf16) {
        const std::optional<std::wstring> wide = CheckedToWide(text, codePage);
        return wide ? CheckedFromWide(*wide, CP_UTF8) : std::nullopt;
    }
    std::wstring wide(text.size() / 2, L'\0');
    std::copy_n(text.data(), wide.size() * 2, reinterpret_cast<char*>(wide.data()));
    return CheckedFromWide(wide, CP_UTF8);
}

std::optional<std::string> Utf8ToCodePage(std::string_view utf8, uint16_t codePage) {
    if (IsPlainText(utf8, codePage)) return std::string(utf8);
    const std::optional<std::wstring> wide = CheckedToWide(utf8, CP_UTF8);
    if (!wide) return std::nullopt;
    if (codePage != kCodePageUtf16) return CheckedFromWide(*wide, codePage);
    return std::string(reinterpret_cast<const char*>(wide->data()), wide->size() * 2);
}

bool IsSameName(std::string_view a, std::string_view b) {
    if (a == b) return true;
    const auto first = CheckedToWide(a, CP_UTF8), second = CheckedToWide(b, CP_UTF8);
    return first && second && Compare(*first, *second) == 0;
}

int CompareNames(std::u16string_view a, std::u16string_view b) {
    const auto wide = [](std::u16string_view name) {
        return std::wstring_view(reinterpret_cast<const wchar_t*>(name.data()), name.size());
    };
    return Compare(wide(a), wide(b));
}

} // namespace orlo
