// Texts of property sets in code pages: strict, and with the system's 16-bit characters as one of them.

#include "orlo/propset/code_page.h"

#include "codepages/conversion.h"

namespace orlo {

namespace {

using codepages::Invalid;

// Returns nothing if the bytes are not text. Bytes that a Windows code page leaves undefined are converted to control
// characters, which are not accepted as text either.
std::optional<std::u16string> CheckedToWide(std::string_view text, uint16_t codePage) {
    std::optional<std::u16string> wide = codepages::ToUtf16(text, codePage, Invalid::Reject);
    const auto isUndefined = [](char16_t c) { return c >= 0x80 && c < 0xA0; };
    const bool isOfWindows = codePage == 0 || codePage == 874 || (codePage >= 1250 && codePage <= 1258);
    if (wide && isOfWindows && std::any_of(wide->begin(), wide->end(), isUndefined)) wide.reset();
    return wide;
}

} // namespace

std::optional<std::string> CodePageToUtf8(std::string_view text, uint16_t codePage) {
    if (text.empty() || IsPlainText(text, codePage)) return std::string(text);
    std::optional<std::u16string> wide;
    if (codePage == kCodePageUtf16) {
        wide.emplace(text.size() / 2, u'\0');
        text.copy(reinterpret_cast<char*>(wide->data()), wide->size() * 2);
    } else {
        wide = CheckedToWide(text, codePage);
    }
    return wide ? codepages::FromUtf16(*wide, kCodePageUtf8) : std::nullopt;
}

std::optional<std::string> Utf8ToCodePage(std::string_view utf8, uint16_t codePage) {
    if (utf8.empty() || IsPlainText(utf8, codePage)) return std::string(utf8);
    const std::optional<std::u16string> wide = CheckedToWide(utf8, kCodePageUtf8);
    if (!wide) return std::nullopt;
    if (codePage != kCodePageUtf16) return codepages::FromUtf16(*wide, codePage);
    return std::string(reinterpret_cast<const char*>(wide->data()), wide->size() * 2);
}

bool IsSameName(std::string_view a, std::string_view b) {
    if (a == b) return true;
    const auto first = CheckedToWide(a, kCodePageUtf8), second = CheckedToWide(b, kCodePageUtf8);
    return first && second && CompareNames(*first, *second) == 0;
}

int CompareNames(std::u16string_view a, std::u16string_view b) {
    return codepages::CompareIgnoringCase(a, b);
}

} // namespace orlo
