// Code pages, \U+ and \M+ escapes, and %% control codes.

#include "drawcore/src/dxf/text_decoding.h"

#include <algorithm>
#include <cstdio>

#include "codepages/conversion.h"
#include "drawcore/src/dxf/code_page.h"

namespace dxf {

namespace {

using codepages::Invalid;
using codepages::kUtf8;

bool IsAscii(std::string_view bytes) {
    return std::all_of(bytes.begin(), bytes.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

std::string Utf8FromCodePage(std::string_view bytes, uint16_t codePage) {
    const std::optional<std::u16string> text = codepages::ToUtf16(bytes, codePage, Invalid::Replace);
    return text ? codepages::FromUtf16(*text, kUtf8).value_or("") : "";
}

// Returns the length of the character at the start of UTF-8 text.
size_t CharacterLength(std::string_view utf8) {
    size_t length = 1;
    while (length < utf8.size() && (utf8[length] & 0xC0) == 0x80)
        ++length;
    return length;
}

// Parses a number with exactly that many digits. Returns false if there is none.
bool ReadDigits(std::string_view text, size_t digits, int base, uint32_t& number) {
    const auto parsed = text.size() < digits ? std::nullopt : ParseNumber<uint32_t>(text.substr(0, digits), base);
    number = parsed.value_or(number);
    return parsed.has_value();
}

bool ReadUnicodeEscape(std::string_view text, uint32_t& unit) {
    return text.size() >= 7 && (text.substr(0, 3) == "\\U+" || text.substr(0, 3) == "\\u+") &&
           ReadDigits(text.substr(3), 4, 16, unit);
}

// Returns the character in the code page, or as an escape; as two escapes beyond 16 bits.
std::string EncodedCharacter(std::string_view utf8, uint16_t codePage) {
    const std::u16string units = codepages::ToUtf16(utf8, kUtf8, Invalid::Replace).value_or(u"");
    if (const auto bytes = codepages::FromUtf16(units, codePage)) return *bytes;
    std::string escapes;
    for (const char16_t unit : units) {
        char escape[8];
        std::snprintf(escape, sizeof escape, "\\U+%04X", static_cast<unsigned>(unit));
        escapes += escape;
    }
    return escapes;
}

// Appends the character of "\M+nXXXX": two bytes in one of five code pages. Returns the length of the escape, or 0.
size_t AppendMultiByteEscape(std::string& to, std::string_view text) {
    constexpr uint16_t kPages[] = {932, 950, 949, 1361, 936};
    uint32_t bytes = 0;
    if (text.size() < 8 || text.substr(0, 3) != "\\M+" || text[3] < '1' || text[3] > '5') return 0;
    if (!ReadDigits(text.substr(4), 4, 16, bytes)) return 0;
    const char pair[] = {static_cast<char>(bytes >> 8), static_cast<char>(bytes & 0xFF)};
    const bool single = pair[0] == 0;
    to += Utf8FromCodePage({single ? pair + 1 : pair, single ? 1u : 2u}, kPages[text[3] - '1']);
    return 8;
}

} // namespace

void AppendUtf8(std::string& text, uint32_t codePoint) {
    const bool surrogate = codePoint >= 0xD800 && codePoint < 0xE000;
    const uint32_t c = surrogate || codePoint > 0x10FFFF ? 0xFFFD : codePoint;
    const auto tail = [&](int shift) { text += static_cast<char>(0x80 | ((c >> shift) & 0x3F)); };
    if (c < 0x80) {
        text += static_cast<char>(c);
    } else if (c < 0x800) {
        text += static_cast<char>(0xC0 | (c >> 6));
        tail(0);
    } else if (c < 0x10000) {
        text += static_cast<char>(0xE0 | (c >> 12));
        tail(6), tail(0);
    } else {
        text += static_cast<char>(0xF0 | (c >> 18));
        tail(12), tail(6), tail(0);
    }
}

void TextDecoder::SetVersion(std::string_view version) {
    utf8_ = version >= "AC1021";
}

void TextDecoder::SetCodePage(std::string_view name) {
    page_ = CodePageNumber(name);
}

std::string TextDecoder::Decode(std::string_view bytes) const {
    // Some programs write the new version number but still use their code page.
    if (IsAscii(bytes) || (utf8_ && codepages::ToUtf16(bytes, kUtf8, Invalid::Reject))) return std::string(bytes);
    return Utf8FromCodePage(bytes, page_);
}

std::string TextDecoder::Encode(std::string_view utf8) const {
    if (IsAscii(utf8) || utf8_) return std::string(utf8);
    std::string bytes;
    while (!utf8.empty()) {
        const size_t length = CharacterLength(utf8);
        bytes += EncodedCharacter(utf8.substr(0, length), page_);
        utf8.remove_prefix(length);
    }
    return bytes;
}

std::vector<std::string> TextDecoder::EncodePieces(std::string_view utf8) const {
    constexpr size_t kLongest = 250; // in bytes
    std::vector<std::string> pieces;
    while (!utf8.empty()) {
        const size_t length = CharacterLength(utf8);
        const std::string character = Encode(utf8.substr(0, length));
        if (pieces.empty() || pieces.back().size() + character.size() > kLongest) pieces.emplace_back();
        pieces.back() += character;
        utf8.remove_prefix(length);
    }
    return pieces;
}

bool HasControlCharacter(std::string_view text) {
    return std::any_of(text.begin(), text.end(),
                       [](char c) { return static_cast<unsigned char>(c) < ' ' && c != '\t'; });
}

size_t AppendEscape(std::string& text, std::string_view stored) {
    if (stored.size() < 7 || stored[0] != '\\') return 0;
    uint32_t unit = 0;
    if (!ReadUnicodeEscape(stored, unit)) return AppendMultiByteEscape(text, stored);
    uint32_t low = 0;
    const bool paired =
        unit >= 0xD800 && unit < 0xDC00 && ReadUnicodeEscape(stored.substr(7), low) && low >= 0xDC00 && low < 0xE000;
    AppendUtf8(text, paired ? 0x10000 + ((unit - 0xD800) << 10) + (low - 0xDC00) : unit);
    return paired ? 14 : 7;
}

std::string ToDisplayText(std::string_view stored) {
    std::string shown;
    while (!stored.empty()) {
        size_t length = AppendEscape(shown, stored);
        if (length == 0) shown += stored[0], length = 1;
        stored.remove_prefix(length);
    }
    return shown;
}

std::string ReadExtendedText(std::string_view stored) {
    std::string text;
    const std::string shown = ToDisplayText(stored);
    for (size_t i = 0; i < shown.size(); ++i) {
        const bool escaped = shown[i] == '^' && i + 1 < shown.size();
        if (escaped) ++i;
        text += !escaped ? shown[i] : shown[i] == ' ' ? '^' : static_cast<char>(shown[i] & 0x1F);
    }
    return text;
}

std::string WriteExtendedText(std::string_view text) {
    std::string stored;
    for (const char c : text) {
        if (c == '^')
            stored += "^ ";
        else if (static_cast<unsigned char>(c) < ' ')
            stored += {'^', static_cast<char>(c + '@')};
        else
            stored += c;
    }
    return stored;
}

LineText ReadControlCodes(std::string_view rest) {
    LineText line;
    while (!rest.empty()) {
        if (rest.size() < 3 || rest.substr(0, 2) != "%%") {
            line.text += rest[0];
            rest.remove_prefix(1);
            continue;
        }
        uint32_t character = 0;
        size_t length = 3;
        switch (rest[2] | 0x20) { // in lowercase
        case 'd':
            line.text += "\u00B0";
            break;
        case 'p':
            line.text += "\u00B1";
            break;
        case 'c':
            line.text += "\u00D8";
            break;
        case 'u':
            line.underlined = true;
            break;
        case 'o':
            line.overlined = true;
            break;
        case 'k':
            line.struckThrough = true;
            break;
        case '%':
            line.text += '%';
            break;
        default:
            if (ReadDigits(rest.substr(2), 3, 10, character) && character >= ' ' && character < 256) {
                length = 5;
                AppendUtf8(line.text, character);
            } else {
                line.text += '%'; // not a code: both characters are text
                length = 1;
            }
        }
        rest.remove_prefix(length);
    }
    return line;
}

std::string WithoutSwitch(std::string_view rest, char letter) {
    std::string text;
    while (!rest.empty()) {
        const bool isCode = rest.size() >= 3 && rest.substr(0, 2) == "%%";
        const size_t length = isCode ? 3 : 1;
        if (!isCode || (rest[2] != letter && rest[2] != letter - 'a' + 'A')) text += rest.substr(0, length);
        rest.remove_prefix(length);
    }
    return text;
}

} // namespace dxf
