// Converts code pages by Wine's tables, so that texts are the same as in the Windows programs.

#include "codepages/conversion.h"

#include <clocale>
#include <cwctype>
#include <map>

#include "codepages/nls_table.h"

namespace codepages {

namespace {

constexpr char32_t kFirstHalf = 0xD800, kSecondHalf = 0xDC00, kAfterHalves = 0xE000;
constexpr char32_t kPastHalves = 0x10000; // characters from here on need a surrogate pair
constexpr char16_t kReplacement = 0xFFFD;

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

// Removes the first character from the text and returns it. If it is not UTF-8, or an overlong form, removes one byte
// and returns nothing.
std::optional<char32_t> TakeCharacter(std::string_view& utf8) {
    const auto lead = static_cast<uint8_t>(utf8[0]);
    const std::string_view tail = utf8.substr(1);
    utf8 = tail;
    if (lead < 0x80) return lead;
    const size_t following = lead < 0xE0 ? 1 : lead < 0xF0 ? 2 : 3;
    if (lead < 0xC0 || lead >= 0xF8 || tail.size() < following) return std::nullopt;
    char32_t code = lead & (0x3Fu >> following);
    for (const char next : tail.substr(0, following)) {
        if ((next & 0xC0) != 0x80) return std::nullopt;
        code = code << 6 | (next & 0x3Fu);
    }
    constexpr char32_t kLowest[] = {0, 0x80, 0x800, kPastHalves}, kHighest = 0x10FFFF;
    if (code < kLowest[following] || code > kHighest || IsFirstHalf(code) || IsSecondHalf(code)) return std::nullopt;
    utf8.remove_prefix(following);
    return code;
}

std::optional<std::u16string> FromUtf8(std::string_view utf8, Invalid invalid) {
    std::u16string text;
    text.reserve(utf8.size());
    while (!utf8.empty()) {
        const std::optional<char32_t> code = TakeCharacter(utf8);
        if (!code && invalid == Invalid::Reject) return std::nullopt;
        if (code >= kPastHalves) {
            text += static_cast<char16_t>(kFirstHalf + ((*code - kPastHalves) >> 10));
            text += static_cast<char16_t>(kSecondHalf + ((*code - kPastHalves) & 0x3FF));
        } else {
            text += static_cast<char16_t>(code.value_or(kReplacement));
        }
    }
    return text;
}

// Returns null for an unknown code page. Tables are cached, because reading a file takes longer than converting most
// texts. Numbers below 4 denote code pages of the system.
const NlsTable* TableOf(uint16_t codePage) {
    constexpr uint16_t kOfTheSystem[] = {kWesternEuropean, 437, 10000, kWesternEuropean};
    if (codePage < std::size(kOfTheSystem)) codePage = kOfTheSystem[codePage];
    thread_local std::map<uint16_t, NlsTable> tables;
    const NlsTable& table = tables.try_emplace(codePage, codePage).first->second;
    return table.IsKnown() ? &table : nullptr;
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

std::optional<std::u16string> ToUtf16(std::string_view bytes, uint16_t codePage, Invalid invalid) {
    if (codePage == kUtf8) return FromUtf8(bytes, invalid);
    const NlsTable* table = TableOf(codePage);
    return table ? table->ToUtf16(bytes, invalid) : std::nullopt;
}

std::optional<std::string> FromUtf16(std::u16string_view text, uint16_t codePage) {
    if (codePage == kUtf8) return ToUtf8(text);
    const NlsTable* table = TableOf(codePage);
    return table ? table->FromUtf16(text) : std::nullopt;
}

int CompareIgnoringCase(std::u16string_view a, std::u16string_view b) {
    return Folded(a).compare(Folded(b));
}

} // namespace codepages
