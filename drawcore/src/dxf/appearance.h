// The appearance of an entity as the pages of the sheet show it, from its groups and its extended data. The constants
// of orlo/host/words.h are used for colors, line styles and brushes.
#pragma once

#include "drawcore/src/dxf/document.h"
#include "orlo/host/words.h"

namespace dxf {

// The brush style of fills without a pattern.
constexpr char kSolidBrush[] = "Solid";

struct BrushAppearance {
    std::string style;                     // UTF-8; empty for no brush
    std::vector<Hatch::PatternLine> lines; // at scale 1 and angle 0, with the first line through the origin; empty for
                                           // a predefined style
    uint32_t color = kColorOfPen;
    double scale = 1;
    double angle = 0; // in radians
    bool cross = false;
    bool winding = false;
};

struct TextAppearance {
    std::string font; // face, UTF-8; empty: the default face
    double height = 0;
    uint16_t style = 0; // bits
    uint16_t format = 0;
};

struct Appearance {
    LayerIndex layer{};
    uint32_t color = kColorByLayer;
    LineTypeIndex lineType = LineTypeIndex::byLayer;
    double lineScale = 1;
    double width = 0; // inches on paper, drawing units if worldWidth, or a marker
    bool worldWidth = false;
    bool dashesFitted = true;
    BrushAppearance brush; // for all but texts and insertions
    TextAppearance text;   // for texts
    // Values of the properties without a group (PropertyInfo), sorted by name: a text or the name of a block in UTF-8,
    // or a number.
    ExtendedData extended;
    // Bits (kVariedColor ...) of values that apply only to most of the text; inline codes set different values for the
    // rest.
    uint8_t varied = 0;
};

enum : uint8_t { kVariedColor = 1, kVariedFont = 2, kVariedSize = 4, kVariedStyle = 8, kVariedFormat = 16 };
// Returns the bit of a property, or 0 if parts of a text cannot have their own value.
uint8_t VariedBit(std::string_view property);

Appearance AppearanceOf(const Document& document, const Entity& entity);
// Returns the appearance that the groups define, ignoring extended data.
Appearance AppearanceByGroups(const Document& document, const Entity& entity);

// Returns the value with that name, or null.
const ExtendedValue* FindExtended(const ExtendedData& data, std::string_view name);
const ExtendedValue* FindExtended(const Entity& entity, std::string_view name);
// Return the number or text of a property by name: a color, factor, length or switch, or a value in
// Appearance::extended. NumberOf returns nothing for other properties.
std::optional<double> NumberOf(const Appearance& appearance, std::string_view property);
std::string TextOf(const Appearance& appearance, std::string_view property);
void SetNumber(Appearance& appearance, const char* property, double value);
void SetText(Appearance& appearance, const char* property, const std::string& text);
// Sets a value in Appearance::extended, or removes it if it is empty.
void SetExtended(Appearance& appearance, ExtendedValue value);

// Extended values that are not properties of the sheet.
constexpr char kExtendedPlacement[] = "Placement"; // of an insertion
constexpr char kExtendedStyleTree[] = "StyleName"; // of a block: the style tree of its contents

// Returns whether two numbers look the same when drawn. Written values are compared exactly.
bool Near(double a, double b);
bool Near(const Vec3& a, const Vec3& b);
// Returns whether numbers computed from numbers of that magnitude differ only by rounding.
bool SameToRounding(double a, double b, double magnitude);
bool SameLine(const Hatch::PatternLine& a, const Hatch::PatternLine& b);
bool SameLines(const std::vector<Hatch::PatternLine>& a, const std::vector<Hatch::PatternLine>& b);
bool operator==(const BrushAppearance& a, const BrushAppearance& b);
bool operator==(const TextAppearance& a, const TextAppearance& b);
bool operator==(const Appearance& a, const Appearance& b);

// Returns whether all segments of a polyline have the same width.
bool HasOneWidth(const Polyline& polyline);

// The family and style (bits of kPropTextStyle) of a text style; an empty family is the default face.
struct FontFace {
    std::string family;
    uint16_t style = 0;
};
FontFace FaceOf(const TextStyle& style);
// Returns the font file of a family in that style.
std::string FontFileOf(const FontFace& face);

constexpr double kWeightsPerInch = kMillimetersPerInch * 100; // line weights are in hundredths of a millimeter

} // namespace dxf
