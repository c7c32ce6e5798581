// The appearance of an entity as the pages of the sheet show it, from its groups and its extended data. The constants
// of orlo/host/words.h are used for colors, line styles and brushes.
#pragma once

#include "drawcore/src/dxf/document.h"
#include "orlo/host/words.h"

namespace dxf {

// The brush style of fillings without a pattern.
constexpr char kSolidBrush[] = "Solid";

struct BrushLook {
    std::string style;                     // UTF-8; empty for no brush
    std::vector<Hatch::PatternLine> lines; // at scale 1 and angle 0, with the first line through the origin; empty for
                                           // a predefined style
    uint32_t color = kColorOfPen;
    double scale = 1;
    double angle = 0; // in radians
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
    double width = 0; // inches on paper, drawing units if worldWidth, or a marker
    bool worldWidth = false;
    bool dashesFitted = true;
    BrushLook brush; // for all but texts and insertions
    TextLook text;   // for texts
    // Values of the properties without a group (PropertyInfo), sorted by name: a text or the name of a block in UTF-8,
    // or a number.
    OwnData extended;
    // Bits (kVariedColor ...) of values that only most of the text has; inline codes set others for the rest.
    uint8_t varied = 0;
};

enum : uint8_t { kVariedColor = 1, kVariedFont = 2, kVariedSize = 4, kVariedStyle = 8, kVariedFormat = 16 };
// Returns the bit of a property, or 0 if parts of a text cannot have their own value.
uint8_t VariedBit(std::string_view property);

Look LookOf(const Document& document, const Entity& entity);
// Returns the appearance by groups only, ignoring extended data.
Look LookByGroups(const Document& document, const Entity& entity);

// Returns the value with that name, or null.
const OwnValue* FindOwn(const OwnData& data, std::string_view name);
const OwnValue* FindOwn(const Entity& entity, std::string_view name);
// Return the number or text of a property by name: a color, factor, length or switch, or a value in Look::extended.
// NumberOf returns nothing for other properties.
std::optional<double> NumberOf(const Look& look, std::string_view property);
std::string TextOf(const Look& look, std::string_view property);
void SetNumber(Look& look, const char* property, double value);
void SetText(Look& look, const char* property, const std::string& text);
// Sets a value in Look::extended, or removes it if it is empty.
void SetExtended(Look& look, OwnValue value);

// Extended values that are not properties of the sheet.
constexpr char kOwnPlacement[] = "Placement"; // of an insertion
constexpr char kOwnStyleTree[] = "StyleName"; // of a block: the style tree of its contents

// Returns whether two numbers look the same when drawn. Written values are compared exactly.
bool Near(double a, double b);
bool Near(const Vec3& a, const Vec3& b);
// Returns whether numbers computed from numbers of that magnitude differ only by rounding.
bool SameToRounding(double a, double b, double magnitude);
bool SameLine(const Hatch::PatternLine& a, const Hatch::PatternLine& b);
bool SameLines(const std::vector<Hatch::PatternLine>& a, const std::vector<Hatch::PatternLine>& b);
bool operator==(const BrushLook& a, const BrushLook& b);
bool operator==(const TextLook& a, const TextLook& b);
bool operator==(const Look& a, const Look& b);

// Returns whether all segments of a polyline have the same width.
bool HasOneWidth(const Polyline& polyline);

// The family and style (bits of kPropTextStyle) of a text style; an empty family is the default face.
struct FontFace {
    std::string family;
    uint16_t cut = 0;
};
FontFace FaceOf(const TextStyle& style);
// Returns the font file of a family in that style.
std::string FontFileOf(const FontFace& face);

constexpr double kWeightsPerInch = kMillimetersPerInch * 100; // line weights are in hundredths of a millimeter

} // namespace dxf
