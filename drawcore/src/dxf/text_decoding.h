// Converts the bytes of a drawing to text: code pages, and the escapes of single-line texts. For those of MTEXT see
// inline_codes.h.
#pragma once

#include <charconv>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "drawcore/include/drawcore/dxf_document.h" // ToDisplayText

namespace dxf {

// Parses a number that makes up the whole text. base: of an integer, if not 10.
template <class Number, class... Base>
std::optional<Number> ParseNumber(std::string_view text, Base... base) {
    Number number = 0;
    const char* const end = text.data() + text.size();
    const auto [rest, error] = std::from_chars(text.data(), end, number, base...);
    return error == std::errc() && rest == end ? std::optional<Number>(number) : std::nullopt;
}

// Converts between the bytes of a file and UTF-8: by the file's code page, or unchanged from version AC1021 on.
class TextDecoder {
public:
    TextDecoder() = default;
    TextDecoder(std::string_view version, std::string_view codePage) {
        SetVersion(version);
        SetCodePage(codePage);
    }

    void SetVersion(std::string_view version);
    // name: as in drawings; see code_page.h.
    void SetCodePage(std::string_view name);
    std::string Decode(std::string_view bytes) const;
    // Encodes UTF-8 for the file: a character that the code page cannot represent becomes "\U+4E57".
    std::string Encode(std::string_view utf8) const;
    // Splits the text into pieces that fit on the lines of any program, without splitting characters. Returns none for
    // an empty text.
    std::vector<std::string> EncodePieces(std::string_view utf8) const;

private:
    uint16_t page_ = 1252;
    bool utf8_ = false;
};

// Reads a text of extended data of kApplication, in which control characters are escaped: "^J" is a line feed, "^ " a
// caret.
std::string ReadExtendedText(std::string_view stored);
std::string WriteExtendedText(std::string_view text);

// Returns whether the text contains a character that no line of a file can store.
bool HasControlCharacter(std::string_view text);

// Appends the character of the escape at the start of the text and returns its length, or 0 if there is no escape.
size_t AppendEscape(std::string& text, std::string_view stored);

// Appends a code point as UTF-8, or U+FFFD if it is invalid.
void AppendUtf8(std::string& text, uint32_t codePoint);

// A displayed single-line text with its formats; control codes such as "%%d" (degree sign) and "%%u" (underline) are
// resolved.
struct LineText {
    std::string text;
    bool underlined = false; // any part of it
    bool overlined = false;
    bool struckThrough = false;
};
LineText ReadControlCodes(std::string_view text);
// Returns the stored text without the switches of that lowercase letter.
std::string WithoutSwitch(std::string_view stored, char letter);

} // namespace dxf
