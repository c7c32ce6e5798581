// Converts code pages with the system's functions.

#include "codepages/conversion.h"

#include <climits>

#include <windows.h>

namespace codepages {

namespace {

int Length(size_t size) {
    return size <= INT_MAX ? static_cast<int>(size) : 0;
}

const wchar_t* Wide(std::u16string_view text) {
    return reinterpret_cast<const wchar_t*>(text.data());
}

} // namespace

std::optional<std::u16string> ToUtf16(std::string_view bytes, uint16_t codePage, Invalid invalid) {
    const DWORD flags = invalid == Invalid::Reject ? MB_ERR_INVALID_CHARS : 0;
    const int size = Length(bytes.size());
    std::u16string text(bytes.size(), u'\0'); // a byte becomes at most one unit
    const int units = ::MultiByteToWideChar(codePage, flags, bytes.data(), size,
                                            reinterpret_cast<wchar_t*>(text.data()), Length(text.size()));
    if (units <= 0 && !bytes.empty()) return std::nullopt;
    text.resize(static_cast<size_t>(units));
    return text;
}

std::optional<std::string> FromUtf16(std::u16string_view text, uint16_t codePage) {
    const DWORD flags = codePage == kUtf8 ? WC_ERR_INVALID_CHARS : WC_NO_BEST_FIT_CHARS;
    BOOL replaced = FALSE;
    const auto convert = [&](char* bytes, int size) {
        return ::WideCharToMultiByte(codePage, flags, Wide(text), Length(text.size()), bytes, size, nullptr,
                                     codePage == kUtf8 ? nullptr : &replaced);
    };
    std::string bytes(static_cast<size_t>(convert(nullptr, 0)), '\0');
    convert(bytes.data(), Length(bytes.size()));
    if (replaced || (bytes.empty() && !text.empty())) return std::nullopt;
    return bytes;
}

int CompareIgnoringCase(std::u16string_view a, std::u16string_view b) {
    return ::CompareStringOrdinal(Wide(a), Length(a.size()), Wide(b), Length(b.size()), TRUE) - CSTR_EQUAL;
}

} // namespace codepages
