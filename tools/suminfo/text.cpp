// Texts made fit to be shown or compared.

#include "text.h"

#include <cstdio>

#include "orlo/propset/code_page.h"

namespace suminfo {

std::string Utf8(std::u16string text) {
    const auto isHalf = [&text](size_t i, char16_t first) {
        return i < text.size() && text[i] >= first && text[i] < first + 0x400;
    };
    for (size_t i = 0; i < text.size(); ++i) {
        if (isHalf(i, 0xD800) && isHalf(i + 1, 0xDC00))
            ++i;
        else if (isHalf(i, 0xD800) || isHalf(i, 0xDC00))
            text[i] = 0xFFFD;
    }
    const std::string_view bytes(reinterpret_cast<const char*>(text.data()), 2 * text.size());
    return orlo::CodePageToUtf8(bytes, orlo::kCodePageUtf16).value_or("");
}

std::string StreamNameShown(std::string_view name) {
    std::string shown;
    for (const char c : name) {
        if (c == '\005')
            shown += "\\005";
        else
            shown += c;
    }
    return shown;
}

std::string Printable(std::string_view utf8, const char* escape) {
    std::string printable;
    for (size_t i = 0; i < utf8.size(); ++i) {
        unsigned code = static_cast<unsigned char>(utf8[i]);
        const bool endsLine = code == '\n' || code == '\r';
        // The second set of them, of two bytes.
        const bool isLong =
            code == 0xC2 && i + 1 < utf8.size() && static_cast<unsigned char>(utf8[i + 1]) < 0xA0;
        if (isLong) code = static_cast<unsigned char>(utf8[++i]);
        if (isLong || code == 0x7F || (code < 0x20 && !endsLine)) {
            char escaped[16];
            std::snprintf(escaped, sizeof escaped, escape, code);
            printable += escaped;
        } else {
            printable += utf8[i];
        }
    }
    return printable;
}

std::string OneLine(std::string_view utf8) {
    std::string line;
    for (const char c : utf8) {
        if (c == '\n')
            line += "\\n";
        else if (c == '\r')
            line += "\\r";
        else if (c == '\t')
            line += "\\t";
        else
            line += c;
    }
    return Printable(line);
}

std::string Hex(const uint8_t* bytes, size_t size) {
    constexpr char kDigits[] = "0123456789abcdef";
    std::string text;
    text.reserve(2 * size);
    for (size_t i = 0; i < size; ++i) {
        text += kDigits[bytes[i] >> 4];
        text += kDigits[bytes[i] & 0xF];
    }
    return text;
}

} // namespace suminfo
