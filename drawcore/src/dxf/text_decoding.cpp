// Code pages, \U+ and \M+ escapes, and %% control codes.

#include "drawcore/src/dxf/text_decoding.h"

#include <algorithm>
#include <charconv>
#include <cstdio>

namespace dxf {

namespace {

bool IsAscii(std::string_view bytes) {
    return std::all_of(bytes.begin(), bytes.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

// Returns the length of the valid UTF-8 sequence at the start of the bytes, or 0.
size_t SequenceLength(std::string_view bytes) {
    const auto byte = [&](size_t i) { return static_cast<unsigned char>(bytes[i]); };
    const unsigned char first = byte(0);
    if (first < 0x80) return 1;
    const size_t length = first >= 0xF0 ? 4 : first >= 0xE0 ? 3 : 2;
    if (first < 0xC2 || first > 0xF4 || bytes.size() < length) return 0;
    for (size_t i = 1; i < length; ++i)
        if ((byte(i) & 0xC0) != 0x80) return 0;
    const bool overlong = (first == 0xE0 && byte(1) < 0xA0) || (first == 0xF0 && byte(1) < 0x90);
    const bool outside = (first == 0xED && byte(1) > 0x9F) || (first == 0xF4 && byte(1) > 0x8F);
    return overlong || outside ? 0 : length;
}

bool IsUtf8(std::string_view bytes) {
    while (!bytes.empty()) {
        const size_t length = SequenceLength(bytes);
        if (length == 0) return false;
        bytes.remove_prefix(length);
    }
    return true;
}

// Parses a number with exactly that many digits. Returns false if there is none.
bool ReadDigits(std::string_view text, size_t digits, int base, uint32_t& number) {
    if (text.size() < digits) return false;
    const auto [rest, error] = std::from_chars(text.data(), text.data() + digits, number, base);
    return error == std::errc() && rest == text.data() + digits;
}

bool ReadUnicodeEscape(std::string_view text, uint32_t& unit) {
    return text.size() >= 7 && (text.substr(0, 3) == "\\U+" || text.substr(0, 3) == "\\u+") &&
           ReadDigits(text.substr(3), 4, 16, unit);
}

// Returns the escape of a valid character; two escapes for a character beyond 16 bits.
std::string UnicodeEscape(std::string_view character) {
    uint32_t c = static_cast<unsigned char>(character[0]) & (0xFFu >> (character.size() + 1));
    for (const char next : character.substr(1))
        c = c << 6 | (static_cast<unsigned char>(next) & 0x3F);
    const auto escape = [](uint32_t unit) {
        char text[8];
        std::snprintf(text, sizeof text, "\\U+%04X", static_cast<unsigned>(unit & 0xFFFF));
        return std::string(text);
    };
    return c < 0x10000 ? escape(c) : escape(0xD7C0 + (c >> 10)) + escape(0xDC00 + (c & 0x3FF));
}

// Appends the character of "\M+nXXXX": two bytes in one of five code pages. Returns the length of the escape, or 0.
size_t AppendMultiByteEscape(std::string& to, std::string_view text) {
    constexpr int kPages[] = {932, 950, 949, 1361, 936};
    uint32_t bytes = 0;
    if (text.size() < 8 || text.substr(0, 3) != "\\M+" || text[3] < '1' || text[3] > '5') return 0;
    if (!ReadDigits(text.substr(4), 4, 16, bytes)) return 0;
    const char pair[] = {static_cast<char>(bytes >> 8), static_cast<char>(bytes & 0xFF)};
    const bool single = pair[0] == 0;
    to += CodePage(kPages[text[3] - '1']).ToUtf8({single ? pair + 1 : pair, single ? 1u : 2u});
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

std::string TextDecoder::Decode(std::string_view bytes) const {
    // Some programs write the new version number but still use their code page.
    if (IsAscii(bytes) || (utf8_ && IsUtf8(bytes))) return std::string(bytes);
    return page_.ToUtf8(bytes);
}

std::string TextDecoder::Encode(std::string_view utf8) const {
    if (IsAscii(utf8) || utf8_) return std::string(utf8);
    std::string bytes;
    while (!utf8.empty()) {
        const size_t length = std::max<size_t>(SequenceLength(utf8), 1);
        const std::string_view character = utf8.substr(0, length);
        bytes += length == 1 ? std::string(character) : page_.FromUtf8(character).value_or(UnicodeEscape(character));
        utf8.remove_prefix(length);
    }
    return bytes;
}

std::vector<std::string> TextDecoder::EncodePieces(std::string_view utf8) const {
    constexpr size_t kLongest = 250; // in bytes
    std::vector<std::string> pieces;
    while (!utf8.empty()) {
        const size_t length = std::max<size_t>(SequenceLength(utf8), 1);
        const std::string character = Encode(utf8.substr(0, length));
        if (pieces.empty() || pieces.back().size() + character.size() > kLongest) pieces.emplace_back();
        pieces.back() += character;
        utf8.remove_prefix(length);
    }
    return pieces;
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
        switch (rest[2]) {
        case 'd':
        case 'D':
            line.text += "\u00B0";
            break;
        case 'p':
        case 'P':
            line.text += "\u00B1";
            break;
        case 'c':
        case 'C':
            line.text += "\u00D8";
            break;
        case 'u':
        case 'U':
            line.underlined = true;
            break;
        case 'o':
        case 'O':
            line.overlined = true;
            break;
        case 'k':
        case 'K':
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
