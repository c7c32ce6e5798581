// The place, style and alignment of imported texts.
#include "drawcore/src/import/text_import.h"

#include <algorithm>
#include <cmath>

#include "drawcore/src/database/encoding.h"
#include "drawcore/src/dxf/inline_codes.h"
#include "drawcore/src/dxf/placement.h"
#include "drawcore/src/dxf/text_decoding.h"
#include "drawcore/src/import/import_tables.h"
#include "drawcore/src/import/vertex_builder.h"

namespace drawcore {

namespace {

struct FontFile {
    const char* stem;
    const char* face;
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
    {"romant", "Times New Roman", 0}, // stroke fonts that have the look of a face
    {"romanc", "Times New Roman", 0},
    {"italict", "Times New Roman", kTextItalic},
    {"italicc", "Times New Roman", kTextItalic},
    {"monotxt", "Courier New", 0},
};

// The face that stands for a font file: that of a TrueType file, the default for the other stroke fonts.
void SetFace(const std::string& fontFile, TextState& state) {
    const std::string folded = FoldName(fontFile);
    const std::string file = folded.substr(folded.find_last_of("\\/") + 1);
    const std::string stem = file.substr(0, file.find('.'));
    for (const FontFile& known : kFontFiles)
        if (stem == known.stem) {
            state.font = known.face;
            state.style |= known.style;
            return;
        }
    const bool trueType =
        file.size() > 4 && (file.compare(file.size() - 4, 4, ".ttf") == 0 || file.find('.') == file.npos);
    if (trueType) state.font = CodePageFromUtf8(stem);
}

void SetFace(const dxf::TextStyle& style, TextState& state) {
    if (style.fontFace.empty()) return SetFace(style.fontFile, state);
    state.font = CodePageFromUtf8(style.fontFace);
    if (style.bold) state.style |= kTextBold;
    if (style.italic) state.style |= kTextItalic;
}

double SoundHeight(double height, const dxf::TextStyle& style) {
    if (height > 0) return height;
    return style.fixedHeight > 0 ? style.fixedHeight : 1;
}

double SoundWidth(double factor) {
    return factor > 0 ? std::clamp(factor, 0.01, 100.0) : 1;
}

TextAnchor AnchorOf(const dxf::Text& text) {
    if (text.horizontal == dxf::Text::Horizontal::middle) return TextAnchor::Middle;
    switch (text.vertical) {
    case dxf::Text::Vertical::bottom:
        return TextAnchor::Bottom;
    case dxf::Text::Vertical::middle:
        return TextAnchor::Middle;
    case dxf::Text::Vertical::top:
        return TextAnchor::Top;
    default:
        return TextAnchor::Baseline;
    }
}

uint16_t FormatOf(dxf::Text::Horizontal horizontal) {
    switch (horizontal) {
    case dxf::Text::Horizontal::center:
    case dxf::Text::Horizontal::middle:
        return kTextCenter;
    case dxf::Text::Horizontal::right:
        return kTextRight;
    default:
        return kTextLeft;
    }
}

// Where a single line stands and how it is turned, mirrored and slanted.
void Place(const dxf::Entity& entity, const dxf::Text& text, TextState& state) {
    using Horizontal = dxf::Text::Horizontal;
    const Matrix system = dxf::ObjectSystem(entity.normal);
    const bool fitted = text.horizontal == Horizontal::aligned || text.horizontal == Horizontal::fit;
    const bool byAlignment =
        !fitted && (text.horizontal != Horizontal::left || text.vertical != dxf::Text::Vertical::baseline);
    double angle = Radians(text.rotation);
    if (fitted) {
        const Vec3 way = text.alignment - text.insertion;
        state.fitWidth = std::hypot(way.x, way.y);
        if (state.fitWidth > 0) angle = std::atan2(way.y, way.x);
    }
    const double slant = Radians(std::clamp(text.oblique, -80.0, 80.0));
    const double backward = text.backward ? -1 : 1, upsideDown = text.upsideDown ? -1 : 1;
    const double up = angle + kPi / 2 - slant;
    state.position = system.Apply(byAlignment ? text.alignment : text.insertion);
    state.along = system.Turn({std::cos(angle), std::sin(angle), 0}) * backward;
    state.up = system.Turn({std::cos(up), std::sin(up), 0}) * upsideDown;
}

// Aligned paragraphs move within the box of the text; the box stays where it is attached.
void AlignParagraphs(char alignment, TextState& state) {
    if (alignment == 0) return;
    state.boxFormat = state.format;
    state.format = alignment == 'c' ? kTextCenter : alignment == 'r' ? kTextRight : kTextLeft;
}

uint16_t StyleBits(bool underlined, bool struckThrough) {
    return static_cast<uint16_t>((underlined ? kTextUnderline : 0) |
                                 (struckThrough ? kTextStrikethrough : 0));
}

} // namespace

std::unique_ptr<TextGraphic> ImportText(const dxf::Entity& entity, const dxf::Text& text,
                                        const dxf::TextStyle& style) {
    const bool isDefinition = text.role == dxf::Text::Role::definition;
    const dxf::LineText line = dxf::ReadControlCodes(dxf::ToDisplayText(isDefinition ? text.tag : text.text));
    if (line.text.empty()) return nullptr;
    auto graphic = std::make_unique<TextGraphic>();
    TextState& state = graphic->state;
    state.text = Utf16FromUtf8(line.text);
    SetFace(style, state);
    state.style |= StyleBits(line.underlined, line.struckThrough);
    if (text.hidden) state.style |= kTextHidden;
    state.height = SoundHeight(text.height, style);
    state.widthFactor = SoundWidth(text.widthFactor);
    state.format = FormatOf(text.horizontal);
    state.anchor = AnchorOf(text);
    Place(entity, text, state);
    return graphic;
}

std::unique_ptr<TextGraphic> ImportText(const dxf::Entity& entity, const dxf::MText& text,
                                        const dxf::TextStyle& style) {
    const double height = SoundHeight(text.height, style);
    const dxf::FormattedText formatted = dxf::ReadInlineCodes(text.text, height);
    std::string plain = formatted.Plain();
    if (plain.empty()) return nullptr;
    for (size_t tab; (tab = plain.find('\t')) != plain.npos;)
        plain.replace(tab, 1, "    ");
    const dxf::InlineFormat format = formatted.Prevailing();
    auto graphic = std::make_unique<TextGraphic>();
    TextState& state = graphic->state;
    state.text = Utf16FromUtf8(plain);
    SetFace(style, state);
    if (!format.font.empty()) {
        state.style = 0;
        if (format.font.find('.') != format.font.npos)
            SetFace(format.font, state);
        else
            state.font = CodePageFromUtf8(format.font);
    }
    if (format.bold) state.style |= kTextBold;
    if (format.italic) state.style |= kTextItalic;
    state.style |= StyleBits(format.underlined, format.struckThrough);
    state.height = height * format.scale;
    state.widthFactor = SoundWidth(style.widthFactor * format.widthFactor);
    state.wrapWidth = std::max(text.width, 0.0);
    state.lineSpacing = text.lineSpacing > 0 ? std::clamp(text.lineSpacing, 0.25, 4.0) : 1;
    state.format = static_cast<uint16_t>((text.attachment - 1) % 3);
    AlignParagraphs(format.alignment, state);
    constexpr TextAnchor kAnchors[] = {TextAnchor::Top, TextAnchor::Middle, TextAnchor::Bottom};
    state.anchor = kAnchors[(text.attachment - 1) / 3];
    state.position = text.insertion;
    const Vec3 along = text.direction, normal = dxf::ObjectSystem(entity.normal).Turn({0, 0, 1});
    state.along = Length(along) > 0 ? Normalized(along) : Vec3{1, 0, 0};
    state.up = Normalized(Cross(normal, state.along));
    if (format.color >= 0 || format.trueColor >= 0)
        graphic->pen.color = ColorOfDxf(format.color, format.trueColor);
    return graphic;
}

} // namespace drawcore
