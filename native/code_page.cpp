// Code pages on Linux, by Wine's tables, so that texts are the same as in the Windows programs.

#include "orlo/propset/code_page.h"

#include <clocale>
#include <cwctype>
#include <map>

#include "native/nls_table.h"

namespace orlo {

namespace {

constexpr char32_t kFirstHalf = 0xD800, kSecondHalf = 0xDC00, kAfterHalves = 0xE000;
constexpr char32_t kPastHalves = 0x10000; // characters from here on need a surrogate pair

bool IsFirstHalf(char32_t c) {
    return c >= kFirstHalf && c < kSecondHalf;
}
bool IsSecondHalf(char32_t c) {
    return c >= kSecondHalf && c < kAfterHalves;
}

// Returns nothing for an unpaired surrogate.
std::optional<std::string> ToUtf8(std::u16string_view text) {
    std::string utf8;
    utf8.reserve(text.size());
    for (size_t i = 0; i < text.size(); ++i) {
        char32_t code = text[i];
        if (IsFirstHalf(code) && i + 1 < text.size() && IsSecondHalf(text[i + 1]))
            code = kPastHalves + ((code - kFirstHalf) << 10) + (text[++i] - kSecondHalf);
        else if (code >= kFirstHalf && code < kAfterHalves)
            return std::nullopt;
        const int following = code < 0x80 ? 0 : code < 0x800 ? 1 : code < kPastHalves ? 2 : 3;
        constexpr uint8_t kLeads[] = {0x00, 0xC0, 0xE0, 0xF0};
        utf8 += static_cast<char>(kLeads[following] | code >> (6 * following));
        for (int rest = following - 1; rest >= 0; --rest)
            utf8 += static_cast<char>(0x80 | (code >> (6 * rest) & 0x3F));
    }
    return utf8;
}

// Returns nothing for bytes that are not UTF-8, including overlong forms.
std::optional<std::u16string> ToUtf16(std::string_view utf8) {
    std::u16string text;
    text.reserve(utf8.size());
    for (size_t i = 0; i < utf8.size();) {
        const auto lead = static_cast<uint8_t>(utf8[i++]);
        const int following = lead < 0x80 ? 0 : lead < 0xE0 ? 1 : lead < 0xF0 ? 2 : 3;
        if ((lead >= 0x80 && lead < 0xC0) || lead >= 0xF8) return std::nullopt;
        char32_t code = following == 0 ? lead : lead & (0x3Fu >> following);
        for (int rest = following; rest > 0; --rest) {
            if (i == utf8.size() || (utf8[i] & 0xC0) != 0x80) return std::nullopt;
            code = code << 6 | (utf8[i++] & 0x3Fu);
        }
        constexpr char32_t kLowest[] = {0, 0x80, 0x800, kPastHalves}, kHighest = 0x10FFFF;
        if (code < kLowest[following] || code > kHighest || IsFirstHalf(code) || IsSecondHalf(code))
            return std::nullopt;
        if (code >= kPastHalves) {
            text += static_cast<char16_t>(kFirstHalf + ((code - kPastHalves) >> 10));
            code = kSecondHalf + ((code - kPastHalves) & 0x3FF);
        }
        text += static_cast<char16_t>(code);
    }
    return text;
}

// Smaller numbers stand for code pages of the system.
uint16_t NumberOf(uint16_t codePage) {
    constexpr uint16_t kOfTheSystem[] = {kUsualCodePage, 437, 10000, kUsualCodePage};
    return codePage < std::size(kOfTheSystem) ? kOfTheSystem[codePage] : codePage;
}

const NlsTable& TableOf(uint16_t codePage) {
    thread_local std::map<uint16_t, NlsTable> tables; // cached, because reading a file takes longer than converting
                                                      // most texts
    return tables.try_emplace(codePage, codePage).first->second;
}

// For bytes that a Windows code page leaves undefined, tables contain the control characters with the same numbers.
bool HasUndefined(std::u16string_view text, uint16_t codePage) {
    const bool isOfWindows = codePage == 0 || codePage == 874 || (codePage >= 1250 && codePage <= 1258);
    return isOfWindows && std::any_of(text.begin(), text.end(), [](char16_t c) { return c >= 0x80 && c < 0xA0; });
}

// Converts letters of all scripts in any locale. Windows only converts letters whose lowercase form is the letter
// itself.
wint_t Upper(wint_t letter) {
    static const locale_t kAllScripts = ::newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr);
    if (!kAllScripts) return letter;
    const wint_t upper = ::towupper_l(letter, kAllScripts);
    return ::towlower_l(upper, kAllScripts) == letter ? upper : letter;
}

std::u16string Folded(std::u16string_view name) {
    std::u16string folded(name);
    for (char16_t& unit : folded)
        unit = static_cast<char16_t>(Upper(unit));
    return folded;
}

} // namespace

std::optional<std::string> CodePageToUtf8(std::string_view text, uint16_t codePage) {
    if (text.empty() || IsPlainText(text, codePage)) return std::string(text);
    if (codePage == kCodePageUtf8) return ToUtf16(text) ? std::optional<std::string>(text) : std::nullopt;
    std::optional<std::u16string> wide;
    if (codePage == kCodePageUtf16) {
        wide.emplace(text.size() / 2, u'\0');
        text.copy(reinterpret_cast<char*>(wide->data()), wide->size() * 2);
    } else if (const NlsTable& table = TableOf(NumberOf(codePage)); table.IsKnown()) {
        wide = table.ToUtf16(text);
    }
    if (!wide || HasUndefined(*wide, codePage)) return std::nullopt;
    return ToUtf8(*wide);
}

std::optional<std::string> Utf8ToCodePage(std::string_view utf8, uint16_t codePage) {
    if (utf8.empty() || IsPlainText(utf8, codePage)) return std::string(utf8);
    const std::optional<std::u16string> wide = ToUtf16(utf8);
    if (!wide) return std::nullopt;
    if (codePage == kCodePageUtf8) return std::string(utf8);
    if (codePage == kCodePageUtf16) return std::string(reinterpret_cast<const char*>(wide->data()), wide->size() * 2);
    const NlsTable& table = TableOf(NumberOf(codePage));
    return table.IsKnown() ? table.FromUtf16(*wide) : std::nullopt;
}

bool IsSameName(std::string_view a, std::string_view b) {
    if (a == b) return true;
    const auto first = ToUtf16(a), second = ToUtf16(b);
    return first && second && CompareNames(*first, *second) == 0;
}

int CompareNames(std::u16string_view a, std::u16string_view b) {
    return Folded(a).compare(Folded(b));
}

} // namespace orlo
