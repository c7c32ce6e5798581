// The face of a text style, and the values that texts inherit from it.
#include <utility>

#include "drawcore/src/dxf/appearance_parts.h"
#include "drawcore/src/dxf/fold_name.h"
#include "drawcore/src/dxf/text_decoding.h"

namespace dxf {

using namespace drawcore; // bits of texts

namespace {

struct FontFile {
    const char* stem;
    const char* family;
    uint16_t style;
};
constexpr FontFile kFontFiles[] = {
    {"arial", "Arial", 0},
    {"arialbd", "Arial", kTextBold},
    {"ariali", "Arial", kTextItalic},
    {"arialbi", "Arial", kTextBold | kTextItalic},
    {"times", "Times New Roman", 0},
    {"timesbd", "Times New Roman", kTextBold},
    {"timesi", "Times New Roman", kTextItalic},
    {"cour", "Courier New", 0},
    {"courbd", "Courier New", kTextBold},
    {"romant", "Times New Roman", 0}, // stroke fonts that resemble a face
    {"romanc", "Times New Roman", 0},
    {"italict", "Times New Roman", kTextItalic},
    {"italicc", "Times New Roman", kTextItalic},
    {"monotxt", "Courier New", 0},
};

// Returns the face for a font file: that of a TrueType file, the default for other stroke fonts.
FontFace FaceOfFile(std::string file) {
    file = FoldName(file);
    file.erase(0, file.find_last_of("\\/") + 1);
    const std::string stem = file.substr(0, file.find('.'));
    for (const FontFile& known : kFontFiles)
        if (stem == known.stem) return {known.family, known.style};
    const bool trueType =
        file.size() > 4 && (file.compare(file.size() - 4, 4, ".ttf") == 0 || file.find('.') == file.npos);
    return {trueType ? stem : "", 0};
}

uint16_t LineBits(bool underlined, bool struckThrough) {
    return static_cast<uint16_t>((underlined ? kTextUnderline : 0) | (struckThrough ? kTextStrikethrough : 0));
}

double ValidHeight(double height, const TextStyle& style) {
    if (height > 0) return height;
    return style.fixedHeight > 0 ? style.fixedHeight : 1;
}

uint16_t FormatOf(Text::Horizontal horizontal) {
    switch (horizontal) {
    case Text::Horizontal::center:
    case Text::Horizontal::middle:
        return kTextCenter;
    case Text::Horizontal::right:
        return kTextRight;
    default:
        return kTextLeft;
    }
}

uint16_t FormatOf(const MText& text, char paragraphs) {
    switch (paragraphs) {
    case 0:
        return static_cast<uint16_t>((text.attachment - 1) % 3);
    case 'c':
        return kTextCenter;
    case 'r':
        return kTextRight;
    default:
        return kTextLeft;
    }
}

} // namespace

FontFace FaceOf(const TextStyle& style) {
    if (style.fontFace.empty()) return FaceOfFile(style.fontFile);
    return {style.fontFace, static_cast<uint16_t>((style.bold ? kTextBold : 0) | (style.italic ? kTextItalic : 0))};
}

std::string FontFileOf(const FontFace& face) {
    for (const FontFile& known : kFontFiles)
        if (face.family == known.family && face.style == known.style) return known.stem + std::string(".ttf");
    return face.family + ".ttf";
}

double HeightOf(const MText& text, const Document& document) {
    return ValidHeight(text.height, document.At(text.style));
}

TextAppearance TextAppearanceOf(const Text& text, const TextStyle& style) {
    const bool isDefinition = text.role == Text::Role::definition;
    const LineText line = ReadControlCodes(ToDisplayText(isDefinition ? text.tag : text.text));
    FontFace face = FaceOf(style);
    TextAppearance appearance;
    appearance.font = std::move(face.family);
    appearance.style = face.style | LineBits(line.underlined, line.struckThrough);
    if (text.hidden) appearance.style |= kTextHidden;
    appearance.height = ValidHeight(text.height, style);
    appearance.format = FormatOf(text.horizontal);
    return appearance;
}

bool IsPartlyMarked(const Text& text) {
    if (text.role == Text::Role::definition) return false;
    const LineText line = ReadControlCodes(ToDisplayText(text.text));
    const auto marksPart = [&](bool marks, char letter) {
        const std::string mark = std::string("%%") + letter, marked = mark + WithoutSwitch(text.text, letter);
        return marks && text.text != marked && text.text != marked + mark;
    };
    return marksPart(line.underlined, 'u') || marksPart(line.struckThrough, 'k');
}

uint8_t VariedBits(const FormattedText& text, const InlineFormat& most) {
    uint8_t bits = 0;
    for (const FormattedText::Run& run : text.runs) {
        if (run.text.find_first_not_of('\n') == run.text.npos) continue; // between paragraphs with their own codes
        const InlineFormat& part = run.format;
        const bool otherStyle = part.bold != most.bold || part.italic != most.italic ||
                                part.underlined != most.underlined || part.struckThrough != most.struckThrough;
        if (part.color != most.color || part.trueColor != most.trueColor) bits |= kVariedColor;
        if (part.font != most.font) bits |= kVariedFont;
        if (part.scale != most.scale) bits |= kVariedSize;
        if (otherStyle) bits |= kVariedStyle;
        if (part.alignment != most.alignment) bits |= kVariedFormat;
    }
    return bits;
}

TextAppearance TextAppearanceOf(const MText& text, const TextStyle& style, const InlineFormat& format) {
    FontFace face = FaceOf(style);
    if (!format.font.empty())
        face = format.font.find('.') != format.font.npos ? FaceOfFile(format.font) : FontFace{format.font, 0};
    TextAppearance appearance;
    appearance.font = std::move(face.family);
    appearance.style = face.style | LineBits(format.underlined, format.struckThrough);
    if (format.bold) appearance.style |= kTextBold;
    if (format.italic) appearance.style |= kTextItalic;
    appearance.height = ValidHeight(text.height, style) * format.scale;
    appearance.format = FormatOf(text, format.alignment);
    return appearance;
}

} // namespace dxf
