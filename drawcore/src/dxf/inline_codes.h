// Parses the inline codes of MTEXT into the displayed text and the formats of its parts. Ignores columns, tab stops,
// indents, tracking and the vertical alignment of parts.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace dxf {

struct InlineFormat {
    std::string font; // TrueType family or font file; empty for the text style's
    bool bold = false;
    bool italic = false;
    bool underlined = false;
    bool overlined = false;
    bool struckThrough = false;
    double scale = 1; // relative to the text's height
    double widthFactor = 1;
    int color = -1;     // -1 for the entity's
    int trueColor = -1; // 0xRRGGBB; -1: none
    // Of the paragraph: 'l', 'c', 'r', 'j' (justified) or 'd' (distributed); 0: according to the attachment.
    char alignment = 0;
};

struct FormattedText {
    struct Run {
        std::string text; // UTF-8, '\n' between paragraphs
        InlineFormat format;
    };
    std::vector<Run> runs;

    std::string Plain() const;
    // Returns the format of most of the text, for hosts with one format per text.
    InlineFormat DominantFormat() const;
};

// height: height of the text in drawing units, also the unit of heights in the codes.
FormattedText ReadInlineCodes(std::string_view stored, double height);

// Returns the stored form with the codes of these letters replaced by the results of `replace`, which is called with
// the letter and the argument, without the semicolon.
using ReplaceCode = std::function<std::string(char letter, std::string_view argument)>;
std::string WithReplacedCodes(std::string_view stored, std::string_view letters, const ReplaceCode& replace);
// Returns the stored form without the codes of these letters and their arguments.
std::string WithoutCodes(std::string_view stored, std::string_view letters);

} // namespace dxf
