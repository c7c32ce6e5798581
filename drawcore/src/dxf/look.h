// How an entity looks, as the pages of the sheet show it: by its groups, and by its own extended data. The words of
// orlo/host/words.h mean the same colors, line styles and brushes here.
#pragma once

#include "drawcore/src/dxf/document.h"
#include "orlo/host/words.h"

namespace dxf {

// The brush style of fillings without a pattern.
constexpr char kSolidBrush[] = "Solid";

struct BrushLook {
    std::string style;                     // UTF-8; empty: no brush
    std::vector<Hatch::PatternLine> lines; // at scale 1 and angle 0, the first one through the origin; empty: a style
                                           // that every drawing has
    uint32_t color = kColorOfPen;
    double scale = 1;
    double angle = 0; // radians
    bool cross = false;
    bool winding = false;
};

struct TextLook {
    std::string font; // face, UTF-8; empty: the default face
    double height = 0;
    uint16_t style = 0; // bits
    uint16_t format = 0;
};

struct Look {
    LayerIndex layer{};
    uint32_t color = kColorByLayer;
    LineTypeIndex lineType = LineTypeIndex::byLayer;
    double lineScale = 1;
    double width = 0; // inches of paper, drawing units if worldWidth, or a marker
    bool worldWidth = false;
    bool dashesFitted = true;
    BrushLook brush; // of all but texts and insertions
    TextLook text;   // of texts
    // Values of the properties that have no group (PropertyInfo), sorted by name: a text or the name of a block in
    // UTF-8, or a number.
    OwnData extended;
    // Bits (kVariedColor ...) of values that only most of the text has: its inline codes give the rest another one.
    uint8_t varied = 0;
};

enum : uint8_t { kVariedColor = 1, kVariedFont = 2, kVariedSize = 4, kVariedStyle = 8, kVariedFormat = 16 };
// Returns the bit of a property; 0 if a part of a text cannot have a value of its own.
uint8_t VariedBit(std::string_view property);

Look LookOf(const Document& document, const Entity& entity);
// The same by its groups alone, without its own extended data.
Look LookByGroups(const Document& document, const Entity& entity);

// Returns the value of that name; null if there is none.
const OwnValue* FindOwn(const OwnData& data, std::string_view name);
const OwnValue* FindOwn(const Entity& entity, std::string_view name);
// The number or text of a property, given by its name: of a color, factor, length or switch, or in Look::extended.
// NumberOf returns nothing for other properties.
std::optional<double> NumberOf(const Look& look, std::string_view property);
std::string TextOf(const Look& look, std::string_view property);
void SetNumber(Look& look, const char* property, double value);
void SetText(Look& look, const char* property, const std::string& text);
// Sets a value of Look::extended; an empty one is removed.
void SetExtended(Look& look, OwnValue value);

// Own values that are not properties of the sheet.
constexpr char kOwnPlacement[] = "Placement"; // of an insertion
constexpr char kOwnStyleTree[] = "StyleName"; // of a block: the tree of styles that its contents belong to

// Returns whether two numbers draw the same: they differ by less than users see. What is written is compared exactly.
bool Near(double a, double b);
bool Near(const Vec3& a, const Vec3& b);
// Returns whether numbers that were calculated from numbers of that magnitude differ by rounding only.
bool SameToRounding(double a, double b, double magnitude);
bool SameLine(const Hatch::PatternLine& a, const Hatch::PatternLine& b);
bool SameLines(const std::vector<Hatch::PatternLine>& a, const std::vector<Hatch::PatternLine>& b);
bool operator==(const BrushLook& a, const BrushLook& b);
bool operator==(const TextLook& a, const TextLook& b);
bool operator==(const Look& a, const Look& b);

// Whether all segments of a polyline have one width.
bool HasOneWidth(const Polyline& polyline);

// The family and cut (bits of a text's style) of a text style; an empty family is the default face.
struct FontFace {
    std::string family;
    uint16_t cut = 0;
};
FontFace FaceOf(const TextStyle& style);
// The font file of a family in that cut.
std::string FontFileOf(const FontFace& face);

constexpr double kWeightsPerInch = kMillimetersPerInch * 100; // line weights are hundredths of a millimeter

} // namespace dxf
