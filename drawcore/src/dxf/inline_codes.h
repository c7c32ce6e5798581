// The inline codes of MTEXT: takes the text as shown, and the format of its parts, out of the stored form.
// Columns, tab stops, indents, tracking and the vertical alignment of parts are passed over.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace dxf {

struct InlineFormat {
    std::string font; // TrueType family or font file; empty: the text style's
    bool bold = false;
    bool italic = false;
    bool underlined = false;
    bool overlined = false;
    bool struckThrough = false;
    double scale = 1; // of the text's height
    double widthFactor = 1;
    int color = -1;     // -1: the entity's
    int trueColor = -1; // 0xRRGGBB; -1: none
    // Of the paragraph: 'l', 'c', 'r', 'j' (justified) or 'd' (distributed); 0: as the text is attached.
    char alignment = 0;
};

struct FormattedText {
    struct Run {
        std::string text; // UTF-8, '\n' between paragraphs
        InlineFormat format;
    };
    std::vector<Run> runs;

    std::string Plain() const;
    // The format of most of the text, for hosts with one format per text.
    InlineFormat Prevailing() const;
};

// height: of the text, in drawing units; heights within are given in the same.
FormattedText ReadInlineCodes(std::string_view stored, double height);

// The stored form without the codes of these letters and their arguments.
std::string WithoutCodes(std::string_view stored, std::string_view letters);

} // namespace dxf
