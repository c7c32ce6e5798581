// From the bytes of a drawing to texts that a person reads: code pages, and the escapes within single-line
// texts. MTEXT has more of them: see inline_codes.h.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "drawcore/src/dxf/code_page.h"

namespace dxf {

// Turns bytes of the file into UTF-8: by the file's code page, or as they are from version AC1021 on.
class TextDecoder {
public:
    void SetVersion(std::string_view version);
    void SetCodePage(std::string_view name) { page_ = CodePage(name); }
    std::string Decode(std::string_view bytes) const;
    // The way back: a character that the code page lacks becomes "\U+4E57".
    std::string Encode(std::string_view utf8) const;
    // In pieces that lines of every program hold, none of which ends within a character. None for an empty text.
    std::vector<std::string> EncodePieces(std::string_view utf8) const;

private:
    CodePage page_{1252};
    bool utf8_ = false;
};

// UTF-8 as stored to UTF-8 as shown: "\U+00C4" becomes an A with two dots, "\M+1835C" what it is in its code
// page.
std::string ToDisplayText(std::string_view stored);

// A text of extended data of kApplication, where a line holds no control character: "^J" is a line feed, "^ " a caret.
std::string ReadOwnText(std::string_view stored);
std::string WriteOwnText(std::string_view text);

// Appends what the escape at the start of the text stands for and gives its length; 0 if there is none.
size_t AppendEscape(std::string& text, std::string_view stored);

// Appends a code point as UTF-8; what is not one as U+FFFD.
void AppendUtf8(std::string& text, uint32_t codePoint);

// A single-line text as shown, escapes already resolved, with its switches: "%%d" is a degree sign, "%%u"
// switches a line below the text.
struct LineText {
    std::string text;
    bool underlined = false; // any part of it
    bool overlined = false;
    bool struckThrough = false;
};
LineText ReadControlCodes(std::string_view text);
// The stored text without the switches of that letter (small).
std::string WithoutSwitch(std::string_view stored, char letter);

} // namespace dxf
