// The text forms of values, one row per property.
#include "drawcore/src/document/property_texts.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdio>

#include "drawcore/src/dxf/color_numbers.h"
#include "drawcore/src/dxf/fold_name.h"
#include "drawcore/src/dxf/standard_brushes.h"
#include "drawcore/src/dxf/text_decoding.h"
#include "drawcore/src/units/calculation.h"
#include "drawcore/src/units/decimal_mark.h"
#include "drawcore/src/units/number_text.h"
#include "drawcore/src/units/unit_settings.h"
#include "orlo/host/words.h"

char drawcore::DecimalMark() {
    return '.';
}

namespace dxf {

namespace {

constexpr char kByLayer[] = "By Layer", kByBlock[] = "By Block";
constexpr char kPenColor[] = "Pen Color"; // also for brushes
constexpr char kNoBrush[] = "No Brush", kNoLine[] = "No Line";

struct Choice {
    const char* text;
    uint32_t value;
};
constexpr Choice kSwitch[] = {{"Off", 0}, {"On", 1}};
constexpr Choice kDrawModes[] = {{"Alternate", 0}, {"Winding", 1}};
constexpr Choice kSystems[] = {{"Paper Scale", 0}, {"World Scale", 1}};
constexpr Choice kFormats[] = {{"Left", kTextLeft}, {"Center", kTextCenter}, {"Right", kTextRight}};
constexpr Choice kEffects[] = {
    {"Bold", kTextBold},           {"Italic", kTextItalic}, {"Strikethrough", kTextStrikethrough},
    {"Underline", kTextUnderline}, {"Text Box", kTextBox},  {"Hidden", kTextHidden},
    {"All Caps", kTextAllCaps}};
constexpr char kRegular[] = "Regular"; // without effects

[[noreturn]] void Refuse(const std::string& text, const std::string& allowed) {
    throw SaveError("'" + text + "' is none of " + allowed);
}

std::string Listed(const std::vector<std::string>& texts) {
    std::string list;
    for (const std::string& text : texts)
        list += (list.empty() ? "" : ", ") + text;
    return list;
}

template <size_t N>
std::string TextOf(const Choice (&choices)[N], uint32_t value) {
    for (const Choice& choice : choices)
        if (choice.value == value) return choice.text;
    return std::to_string(value);
}

template <size_t N>
uint32_t ValueOf(const Choice (&choices)[N], const std::string& text) {
    std::vector<std::string> allowed;
    for (const Choice& choice : choices) {
        if (IsSameName(choice.text, text)) return choice.value;
        allowed.push_back(choice.text);
    }
    Refuse(text, Listed(allowed));
}

std::string ColorText(uint32_t color) {
    if (color == kColorByLayer) return kByLayer;
    if (color == kColorByBlock) return kByBlock;
    if (color == kColorOfPen) return kPenColor;
    const int index = NearestIndex(color);
    if (ColorOfIndex(index) == color) return NameOfIndex(index);
    char text[8];
    std::snprintf(text, sizeof text, "#%06X", static_cast<unsigned>(TrueColorOf(color)));
    return text;
}

uint32_t ReadColor(const std::string& text, bool ofBrush) {
    if (IsSameName(text, kByLayer)) return kColorByLayer;
    if (IsSameName(text, kByBlock)) return kColorByBlock;
    if (ofBrush && IsSameName(text, kPenColor)) return kColorOfPen;
    for (int index = 1; index <= kColorNumbers; ++index)
        if (IsSameName(text, NameOfIndex(index))) return ColorOfIndex(index);
    uint32_t rgb = 0;
    const char* const end = text.data() + text.size();
    if (text.size() == 7 && text[0] == '#' && std::from_chars(text.data() + 1, end, rgb, 16).ptr == end)
        return ColorOf(0, static_cast<int32_t>(rgb));
    std::string allowed =
        std::string(kByLayer) + ", " + kByBlock + ", " + (ofBrush ? std::string(kPenColor) + ", " : "");
    for (int index = 1; index <= 7; ++index)
        allowed += NameOfIndex(index) + ", ";
    Refuse(text, allowed + "Color 8 to Color 255, #RRGGBB");
}

std::string NumberText(double value) {
    constexpr int kDigits = 12;
    return drawcore::DecimalText(value, kDigits);
}

double ReadNumber(const std::string& text) {
    double value = 0;
    drawcore::TextCursor cursor(text);
    if (!drawcore::ReadCalculation(cursor, value) || !cursor.AtEnd() || value < 0)
        throw SaveError("'" + text + "' is no number from 0 on");
    return value;
}

template <class Index, class Thing>
std::optional<Index> FindName(const std::vector<Thing>& things, const std::string& name) {
    for (size_t i = 0; i < things.size(); ++i)
        if (IsSameName(ToDisplayText(things[i].name), name)) return Index(i);
    return std::nullopt;
}

template <class Thing>
std::vector<std::string> NamesOf(const std::vector<Thing>& things) {
    std::vector<std::string> names;
    for (const Thing& thing : things)
        names.push_back(ToDisplayText(thing.name));
    return names;
}

} // namespace

// Formats and parses the values of a property.
struct PropertyForms {
    using Get = std::string (*)(const PropertyTexts&, const Look&);
    using Set = void (*)(const PropertyTexts&, const std::string&, Look&);

    const char* name;
    Get get;
    Set set;

    static const PropertyForms kAll[];
    static const PropertyForms* Find(std::string_view name);

    static const drawcore::LengthUnit& PaperUnit(const PropertyTexts& of) {
        return *drawcore::FindLengthUnit(of.units_.penWidthUnit);
    }
    static const drawcore::LengthUnit& DrawingUnit(const PropertyTexts& of) {
        return *drawcore::FindLengthUnit(of.units_.drawingUnit);
    }
    static double ReadLength(const std::string& text, const drawcore::LengthUnit& unit) {
        double millimeters = 0;
        if (!drawcore::ReadLength(text, unit, millimeters) || millimeters < 0)
            throw SaveError("'" + text + "' is no length from 0 on, as in \"0.5 mm\"");
        return millimeters;
    }
    // Formats lengths with all digits, so that setting them again does not change them.
    static std::string LengthText(const PropertyTexts& of, double units) {
        const drawcore::LengthUnit& unit = DrawingUnit(of);
        constexpr int kDigits = 9;
        return drawcore::WriteLength(units * unit.millimeters, unit, {of.units_.lengthSystem, kDigits, false});
    }

    static std::string GetWidth(const PropertyTexts& of, const Look& look) {
        if (look.width == kPenWidthByLayer) return kByLayer;
        if (look.width == kPenWidthByBlock) return kByBlock;
        if (look.worldWidth) return LengthText(of, look.width);
        constexpr int kDigits = 6;
        return drawcore::WriteLength(look.width * kMillimetersPerInch, PaperUnit(of),
                                     {drawcore::LengthSystem::Decimal, kDigits, true});
    }
    static void SetWidth(const PropertyTexts& of, const std::string& text, Look& look) {
        const bool byLayer = IsSameName(text, kByLayer);
        if (byLayer || IsSameName(text, kByBlock)) {
            look.width = byLayer ? kPenWidthByLayer : kPenWidthByBlock;
            look.worldWidth = false;
        } else if (look.worldWidth)
            look.width = ReadLength(text, DrawingUnit(of)) / DrawingUnit(of).millimeters;
        else
            look.width = ReadLength(text, PaperUnit(of)) / kMillimetersPerInch;
    }

    // A width in drawing units must be a number rather than a marker.
    static void SetSystem(const PropertyTexts& of, const std::string& text, Look& look) {
        look.worldWidth = ValueOf(kSystems, text) != 0;
        const bool inherits = look.worldWidth && look.width < 0;
        if (inherits)
            look.width = look.width == kPenWidthByLayer
                             ? std::max(of.document_.At(look.layer).lineWeight, 0) / kWeightsPerInch
                             : 0;
    }

    static std::string GetLineType(const PropertyTexts& of, const Look& look) {
        if (look.lineType == LineTypeIndex::byLayer) return kByLayer;
        if (look.lineType == LineTypeIndex::byBlock) return kByBlock;
        if (look.lineType == LineTypeIndex::none) return kNoLine;
        return ToDisplayText(of.document_.At(look.lineType).name);
    }
    static void SetLineType(const PropertyTexts& of, const std::string& text, Look& look) {
        if (IsSameName(text, kByLayer))
            look.lineType = LineTypeIndex::byLayer;
        else if (IsSameName(text, kByBlock))
            look.lineType = LineTypeIndex::byBlock;
        else if (IsSameName(text, kNoLine))
            look.lineType = LineTypeIndex::none;
        else if (const auto found = FindName<LineTypeIndex>(of.document_.lineTypes, text))
            look.lineType = *found;
        else
            Refuse(text, std::string(kByLayer) + ", " + kByBlock + ", " + kNoLine + ", " +
                             Listed(NamesOf(of.document_.lineTypes)));
    }

    static void SetLayer(const PropertyTexts& of, const std::string& text, Look& look) {
        const auto found = FindName<LayerIndex>(of.document_.layers, text);
        if (!found) Refuse(text, Listed(NamesOf(of.document_.layers)));
        look.layer = *found;
    }

    static std::string GetBrush(const PropertyTexts&, const Look& look) {
        return look.brush.style.empty() ? kNoBrush : look.brush.style;
    }
    static void SetBrush(const PropertyTexts& of, const std::string& text, Look& look) {
        std::vector<std::string> allowed = {kNoBrush};
        const auto take = [&](const std::string& style, const std::vector<Hatch::PatternLine>& lines) {
            allowed.push_back(style);
            if (!IsSameName(style, text)) return false;
            look.brush.style = style;
            look.brush.lines = lines;
            return true;
        };
        if (IsSameName(text, kNoBrush)) {
            look.brush.style.clear();
            look.brush.lines.clear();
            return;
        }
        for (const StandardBrush& brush : StandardBrushes())
            if (take(brush.name, brush.lines)) return;
        for (const BrushLook& brush : of.patterns_)
            if (take(brush.style, brush.lines)) return;
        Refuse(text, Listed(allowed));
    }

    static std::string GetAngle(const PropertyTexts& of, const Look& look) {
        constexpr int kDigits = 9;
        return drawcore::WriteAngle(look.brush.angle, {of.units_.angleSystem, kDigits});
    }
    static void SetAngle(const PropertyTexts& of, const std::string& text, Look& look) {
        if (!drawcore::ReadAngle(text, of.units_.angleSystem, look.brush.angle))
            throw SaveError("'" + text + "' is no angle");
    }

    static std::string GetEffects(const PropertyTexts&, const Look& look) {
        std::string text;
        for (const Choice& effect : kEffects)
            if (look.text.style & effect.value) text += (text.empty() ? "" : "+") + std::string(effect.text);
        return text.empty() ? kRegular : text;
    }
    static void SetEffects(const PropertyTexts&, const std::string& text, Look& look) {
        look.text.style = 0;
        for (size_t at = 0; !IsSameName(text, kRegular) && at <= text.size();) {
            const size_t end = std::min(text.find('+', at), text.size());
            look.text.style |= static_cast<uint16_t>(ValueOf(kEffects, text.substr(at, end - at)));
            at = end + 1;
        }
    }

    static void SetSize(const PropertyTexts& of, const std::string& text, Look& look) {
        const double size = ReadLength(text, DrawingUnit(of)) / DrawingUnit(of).millimeters;
        if (!(size > 0)) throw SaveError("a text has a height above 0");
        look.text.height = size;
    }
};

// In the order in which they are set: the unit of a width depends on its scale system.
const PropertyForms PropertyForms::kAll[] = {
    {kPropLayer,
     [](const PropertyTexts& of, const Look& look) { return ToDisplayText(of.document_.At(look.layer).name); },
     SetLayer},
    {kPropPenColor, [](const PropertyTexts&, const Look& look) { return ColorText(look.color); },
     [](const PropertyTexts&, const std::string& text, Look& look) { look.color = ReadColor(text, false); }},
    {kPropScaleSystem, [](const PropertyTexts&, const Look& look) { return TextOf(kSystems, look.worldWidth); },
     SetSystem},
    {kPropPenWidth, GetWidth, SetWidth},
    {kPropPenStyle, GetLineType, SetLineType},
    {kPropPenScale, [](const PropertyTexts&, const Look& look) { return NumberText(look.lineScale); },
     [](const PropertyTexts&, const std::string& text, Look& look) { look.lineScale = ReadNumber(text); }},
    {kPropPenAlignment, [](const PropertyTexts&, const Look& look) { return TextOf(kSwitch, look.dashesFitted); },
     [](const PropertyTexts&, const std::string& text, Look& look) {
         look.dashesFitted = ValueOf(kSwitch, text) != 0;
     }},
    {kPropBrushStyle, GetBrush, SetBrush},
    {kPropBrushColor, [](const PropertyTexts&, const Look& look) { return ColorText(look.brush.color); },
     [](const PropertyTexts&, const std::string& text, Look& look) { look.brush.color = ReadColor(text, true); }},
    {kPropBrushScale, [](const PropertyTexts&, const Look& look) { return NumberText(look.brush.scale); },
     [](const PropertyTexts&, const std::string& text, Look& look) { look.brush.scale = ReadNumber(text); }},
    {kPropBrushAngle, GetAngle, SetAngle},
    {kPropHatchCross, [](const PropertyTexts&, const Look& look) { return TextOf(kSwitch, look.brush.cross); },
     [](const PropertyTexts&, const std::string& text, Look& look) { look.brush.cross = ValueOf(kSwitch, text) != 0; }},
    {kPropBrushDrawMode, [](const PropertyTexts&, const Look& look) { return TextOf(kDrawModes, look.brush.winding); },
     [](const PropertyTexts&, const std::string& text, Look& look) {
         look.brush.winding = ValueOf(kDrawModes, text) != 0;
     }},
    {kPropTextFont, [](const PropertyTexts&, const Look& look) { return look.text.font; },
     [](const PropertyTexts&, const std::string& text, Look& look) { look.text.font = text; }},
    {kPropTextSize, [](const PropertyTexts& of, const Look& look) { return LengthText(of, look.text.height); },
     SetSize},
    {kPropTextStyle, GetEffects, SetEffects},
    {kPropTextFormat, [](const PropertyTexts&, const Look& look) { return TextOf(kFormats, look.text.format); },
     [](const PropertyTexts&, const std::string& text, Look& look) {
         look.text.format = static_cast<uint16_t>(ValueOf(kFormats, text));
     }},
};

const PropertyForms* PropertyForms::Find(std::string_view name) {
    for (const PropertyForms& forms : kAll)
        if (name == forms.name) return &forms;
    return nullptr;
}

namespace {

const PropertyInfo& InfoOf(std::string_view name) {
    return *std::find_if(std::begin(kPropertyList), std::end(kPropertyList),
                         [&](const PropertyInfo& info) { return IsSameName(info.name, name); });
}

// Of a property without a group. One that has no value has its default, which is written as nothing.
std::string ExtendedText(const PropertyInfo& info, const Look& look) {
    const OwnValue* value = FindOwn(look.extended, info.name);
    if (!value) return {};
    if (value->numbers.empty()) return value->text;
    const double number = value->numbers[0];
    return info.meaning == PropertyMeaning::Switch ? TextOf(kSwitch, number != 0) : NumberText(number);
}

OwnValue ReadExtended(const Document& document, const PropertyInfo& info, const std::string& text) {
    if (info.meaning == PropertyMeaning::Block && !text.empty() && !FindName<BlockIndex>(document.blocks, text))
        Refuse(text, "the blocks " + Listed(NamesOf(document.blocks)));
    if (info.IsText() || info.meaning == PropertyMeaning::Block) return {info.name, text, {}};
    const double number = info.meaning == PropertyMeaning::Switch ? ValueOf(kSwitch, text) : ReadNumber(text);
    if (number < info.low || number > info.high) throw SaveError("'" + text + "' is out of range");
    return {info.name, "", {number}};
}

} // namespace

PropertyTexts::PropertyTexts(const Document& document)
    : document_(document), units_(drawcore::UnitsOf(document.header)) {
    AddPatterns(document.entities);
    for (const Block& block : document.blocks)
        AddPatterns(block.entities);
}

void PropertyTexts::AddPatterns(const std::vector<Entity>& entities) {
    for (const Entity& entity : entities) {
        if (!std::holds_alternative<Apart<Hatch>>(entity.shape)) continue;
        BrushLook brush = LookOf(document_, entity).brush;
        const auto known = [&](const BrushLook& other) { return other.style == brush.style; };
        if (!brush.lines.empty() && std::none_of(patterns_.begin(), patterns_.end(), known))
            patterns_.push_back(std::move(brush));
    }
}

std::vector<std::string> PropertyTexts::Names() {
    std::vector<std::string> names;
    for (const PropertyForms& forms : PropertyForms::kAll)
        names.push_back(forms.name);
    for (const PropertyInfo& info : kPropertyList)
        if (!info.hasDxfGroup) names.push_back(info.name);
    std::stable_sort(names.begin(), names.end(), [](const std::string& a, const std::string& b) {
        return FindPropertyInfo(a)->part < FindPropertyInfo(b)->part;
    });
    return names;
}

std::optional<std::string> PropertyTexts::NameOf(std::string_view name) {
    for (const PropertyInfo& info : kPropertyList)
        if (IsSameName(info.name, name)) return info.name;
    return std::nullopt;
}

bool PropertyTexts::Has(const Entity& entity, std::string_view name) {
    const auto is = [&](auto... kinds) { return (std::holds_alternative<decltype(kinds)>(entity.shape) || ...); };
    if (is(Apart<Viewport>())) return false;
    const int owner = is(Apart<Text>(), Apart<MText>())         ? kOfTexts
                      : is(Apart<Insert>(), Apart<Dimension>()) ? kOfInserts
                                                                : kOfShapes;
    return InfoOf(name).owners & owner;
}

std::string PropertyTexts::Get(std::string_view name, const Look& look) const {
    const PropertyInfo& info = InfoOf(name);
    return info.hasDxfGroup ? PropertyForms::Find(info.name)->get(*this, look) : ExtendedText(info, look);
}

std::string PropertyTexts::GetWithVariety(std::string_view name, const Look& look) const {
    const bool varies = look.varied & VariedBit(name);
    return Get(name, look) + (varies ? " (varies)" : "");
}

void PropertyTexts::Set(std::string_view name, const std::string& text, Look& look) const {
    const PropertyInfo& info = InfoOf(name);
    try {
        if (info.hasDxfGroup)
            PropertyForms::Find(info.name)->set(*this, text, look);
        else
            SetExtended(look, ReadExtended(document_, info, text));
        look.varied &= static_cast<uint8_t>(~VariedBit(info.name));
    } catch (const SaveError& error) {
        throw SaveError(std::string(info.name) + ": " + error.what());
    }
}

bool SameLook(const Document& a, const Look& one, const Document& b, const Look& other) {
    const auto name = [](const Document& of, LineTypeIndex type) {
        return type < LineTypeIndex::none ? FoldName(ToDisplayText(of.At(type).name))
                                          : std::to_string(static_cast<uint32_t>(type));
    };
    if (!IsSameName(ToDisplayText(a.At(one.layer).name), ToDisplayText(b.At(other.layer).name))) return false;
    if (name(a, one.lineType) != name(b, other.lineType)) return false;
    Look adapted = other;
    adapted.layer = one.layer;
    adapted.lineType = one.lineType;
    return adapted == one;
}

} // namespace dxf
