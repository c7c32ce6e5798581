// The texts for property values, and the names of colors.
#include "drawcore/src/units/property_words.h"

#include <cstdio>

#include "drawcore/src/dxf/color_numbers.h"

namespace drawcore {

namespace {

using Words = std::vector<PropertyWord>;

const Words kNone;
const Words kSwitches = {{0, "Off"}, {1, "On"}};
const Words kColors = {{kColorByLayer, "By Layer"}, {kColorByBlock, "By Block"}, {kColorOfPen, "Pen Color"}};
const Words kLineStyles = {
    {kLineStyleByLayer, "By Layer"}, {kLineStyleByBlock, "By Block"}, {kLineStyleNone, "No Line"}};
const Words kBrushStyles = {{kBrushStyleNone, "No Brush"}};
const Words kScaleSystems = {{kScalePaper, "Paper Scale"}, {kScaleWorld, "World Scale"}};
const Words kDrawModes = {{0, "Alternate"}, {1, "Winding"}};
const Words kTextFormats = {{kTextLeft, "Left"}, {kTextCenter, "Center"}, {kTextRight, "Right"}};
const Words kTextStyles = {
    {kTextBold, "Bold"},           {kTextItalic, "Italic"}, {kTextStrikethrough, "Strikethrough"},
    {kTextUnderline, "Underline"}, {kTextBox, "Text Box"},  {kTextHidden, "Hidden"},
    {kTextAllCaps, "All Caps"}};

} // namespace

const std::vector<PropertyWord>& WordsOf(PropertyMeaning meaning) {
    switch (meaning) {
    case PropertyMeaning::Flag:
        return kSwitches;
    case PropertyMeaning::Color:
        return kColors;
    case PropertyMeaning::LineStyle:
        return kLineStyles;
    case PropertyMeaning::BrushStyle:
        return kBrushStyles;
    case PropertyMeaning::ScaleSystem:
        return kScaleSystems;
    case PropertyMeaning::DrawMode:
        return kDrawModes;
    case PropertyMeaning::TextFormat:
        return kTextFormats;
    case PropertyMeaning::TextStyle:
        return kTextStyles;
    default:
        return kNone;
    }
}

const char* WordOf(PropertyMeaning meaning, uint32_t value) {
    for (const PropertyWord& word : WordsOf(meaning))
        if (word.value == value) return word.text;
    return nullptr;
}

std::string TextStyleText(uint32_t bits) {
    std::string text;
    for (const PropertyWord& effect : kTextStyles)
        if (bits & effect.value) text += (text.empty() ? "" : "+") + std::string(effect.text);
    return text.empty() ? "Regular" : text;
}

std::string ColorText(uint32_t color) {
    if (const char* marker = WordOf(PropertyMeaning::Color, color)) return marker;
    const int index = dxf::NearestIndex(color);
    if (dxf::ColorOfIndex(index) == color) return dxf::NameOfIndex(index);
    char text[8];
    std::snprintf(text, sizeof text, "#%06X", static_cast<unsigned>(dxf::TrueColorOf(color)));
    return text;
}

std::string IntegerText(const PropertyInfo& property, uint32_t value) {
    if (property.meaning == PropertyMeaning::Color) return ColorText(value);
    if (property.meaning == PropertyMeaning::TextStyle) return TextStyleText(value);
    const char* word = WordOf(property.meaning, value);
    return word ? word : std::to_string(value);
}

} // namespace drawcore
