// The properties of graphics: their names and, for C++17, their value types, meanings and limits. Plain C; no window
// header.
#pragma once

#include <stdint.h>

#include "orlo/host/api.h"

// Properties of graphics: names for PropertyTable::PropLookup. The database guide lists their value types.
ORLO_CONSTANT char kPropLayer[] = "Layer"; // identifier of an entry of kTableLayers
ORLO_CONSTANT char kPropInfo[] = "Info";   // attribute text
// Entry of kTableBlocks: the style that the graphic is drawn in, 0 for none.
ORLO_CONSTANT char kPropStyleTree[] = "StyleTree";
ORLO_CONSTANT char kPropPenColor[] = "PenColor";           // a COLORREF, kColorByLayer or kColorByBlock
ORLO_CONSTANT char kPropPenWidth[] = "PenWidth";           // in the unit that kPropScaleSystem selects
ORLO_CONSTANT char kPropPenScale[] = "PenScale";           // scale factor of the dash pattern
ORLO_CONSTANT char kPropPenStyle[] = "PenStyle";           // entry of kTableLineStyles or a kLineStyle... marker
ORLO_CONSTANT char kPropPenAlignment[] = "PenAlignment";   // 1: dashes are fitted to each segment
ORLO_CONSTANT char kPropScaleSystem[] = "ScaleSystem";     // kScaleWorld or kScalePaper
ORLO_CONSTANT char kPropBrushColor[] = "BrushColor";       // like kPropPenColor, also kColorOfPen
ORLO_CONSTANT char kPropBrushAngle[] = "BrushAngle";       // radians, counterclockwise
ORLO_CONSTANT char kPropBrushScale[] = "BrushScale";       // scale factor of a hatch
ORLO_CONSTANT char kPropBrushStyle[] = "BrushStyle";       // entry of kTableBrushStyles or kBrushStyleNone
ORLO_CONSTANT char kPropBrushDrawMode[] = "BrushDrawMode"; // 0 alternate, 1 winding
ORLO_CONSTANT char kPropHatchCross[] = "HatchCross";       // 1: a second set of lines crosses the first
ORLO_CONSTANT char kPropTextFont[] = "TextFont";           // face name
ORLO_CONSTANT char kPropTextSize[] = "TextSize";           // height of a capital letter, in drawing units
ORLO_CONSTANT char kPropTextStyle[] = "TextStyle";         // bits: kTextItalic and following
ORLO_CONSTANT char kPropTextFormat[] = "TextFormat";       // kTextLeft, kTextCenter or kTextRight

#ifdef ORLO_CPP17

#include <string_view>

// The type of a value, as its variant type number.
enum class PropertyType : int { Int32 = 3, Double = 5, Text = 8, Bool = 11, UInt16 = 18, UInt32 = 19 };

// The meaning of a value.
enum class PropertyMeaning {
    Number,
    Flag, // 0 or 1
    Text,
    Color,
    LineStyle, // an entry of the table or a marker; also the following ones
    BrushStyle,
    Layer,
    Block,
    ScaleSystem,
    Width,  // in the unit of the graphic's scale system
    Length, // in drawing units
    Angle,  // radians
    DrawMode,
    TextStyle, // bits
    TextFormat
};

// The part of a graphic that a property describes. Each part has a page of the sheet; the Text page also has the pen
// color.
enum class PropertyPart { General, Pen, Brush, Text };

// The types of graphics that have a property, as bits.
enum : uint8_t { kOfShapes = 1, kOfTexts = 2, kOfInserts = 4, kOfAll = 7 };

struct PropertyInfo {
    const char* name;
    PropertyType type;
    PropertyMeaning meaning;
    PropertyPart part;
    uint8_t owners;
    bool hasDxfGroup; // otherwise DXF files store it as extended data
    double low = 0;   // the least and the greatest value, apart from markers
    double high = 0x1.fffffffffffffp1023;

    constexpr bool IsText() const { return type == PropertyType::Text; }
    constexpr bool IsReal() const { return type == PropertyType::Double; }
};

// All properties, sorted by name.
//
//   for (const PropertyInfo& property : kPropertyList) ...
constexpr PropertyInfo kPropertyList[] = {
    {kPropBrushAngle, PropertyType::Double, PropertyMeaning::Angle, PropertyPart::Brush, kOfShapes, true,
     -0x1.fffffffffffffp1023},
    {kPropBrushColor, PropertyType::UInt32, PropertyMeaning::Color, PropertyPart::Brush, kOfShapes, true},
    {kPropBrushDrawMode, PropertyType::Int32, PropertyMeaning::DrawMode, PropertyPart::Brush, kOfShapes, true, 0, 1},
    {kPropBrushScale, PropertyType::Double, PropertyMeaning::Number, PropertyPart::Brush, kOfShapes, true},
    {kPropBrushStyle, PropertyType::UInt32, PropertyMeaning::BrushStyle, PropertyPart::Brush, kOfShapes, true},
    {kPropHatchCross, PropertyType::Bool, PropertyMeaning::Flag, PropertyPart::Brush, kOfShapes, true, 0, 1},
    {kPropInfo, PropertyType::Text, PropertyMeaning::Text, PropertyPart::General, kOfAll, false},
    {kPropLayer, PropertyType::UInt32, PropertyMeaning::Layer, PropertyPart::General, kOfAll, true},
    {kPropPenAlignment, PropertyType::Bool, PropertyMeaning::Flag, PropertyPart::Pen, kOfShapes, true, 0, 1},
    {kPropPenColor, PropertyType::UInt32, PropertyMeaning::Color, PropertyPart::Pen, kOfAll, true},
    {kPropPenScale, PropertyType::Double, PropertyMeaning::Number, PropertyPart::Pen, kOfShapes, true},
    {kPropPenStyle, PropertyType::UInt32, PropertyMeaning::LineStyle, PropertyPart::Pen, kOfShapes | kOfInserts, true},
    {kPropPenWidth, PropertyType::Double, PropertyMeaning::Width, PropertyPart::Pen, kOfShapes, true},
    {kPropScaleSystem, PropertyType::UInt16, PropertyMeaning::ScaleSystem, PropertyPart::Pen, kOfShapes, true},
    {kPropStyleTree, PropertyType::UInt32, PropertyMeaning::Block, PropertyPart::General, kOfAll, false},
    {kPropTextFont, PropertyType::Text, PropertyMeaning::Text, PropertyPart::Text, kOfTexts, true},
    {kPropTextFormat, PropertyType::UInt16, PropertyMeaning::TextFormat, PropertyPart::Text, kOfTexts, true, 0, 2},
    {kPropTextSize, PropertyType::Double, PropertyMeaning::Length, PropertyPart::Text, kOfTexts, true, 0x1p-1074},
    {kPropTextStyle, PropertyType::UInt16, PropertyMeaning::TextStyle, PropertyPart::Text, kOfTexts, true, 0, 0xFFFF},
};

// Returns the description of a property; null if there is no such property.
constexpr const PropertyInfo* FindPropertyInfo(std::string_view name) {
    for (const PropertyInfo& property : kPropertyList)
        if (name == property.name) return &property;
    return nullptr;
}

#endif
