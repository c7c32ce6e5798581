// The text forms of values, one row per property.
#include "drawcore/src/document/property_texts.h"

#include <algorithm>
#include <charconv>
#include <cmath>

#include "drawcore/src/dxf/color_numbers.h"
#include "drawcore/src/dxf/fold_name.h"
#include "drawcore/src/dxf/standard_brushes.h"
#include "drawcore/src/dxf/text_decoding.h"
#include "drawcore/src/units/calculation.h"
#include "drawcore/src/units/decimal_mark.h"
#include "drawcore/src/units/number_text.h"
#include "drawcore/src/units/property_words.h"
#include "drawcore/src/units/unit_settings.h"
#include "orlo/host/words.h"

char drawcore::DecimalMark() {
    return '.';
}

namespace dxf {

using drawcore::ColorText;
using drawcore::IntegerText;
using drawcore::PropertyWord;
using drawcore::TextStyleText;
using drawcore::WordsOf;

namespace {

[[noreturn]] void ThrowNotOneOf(const std::string& text, const std::string& allowed) {
    throw SaveError("'" + text + "' is not one of " + allowed);
}

std::string Listed(const std::vector<std::string>& texts) {
    std::string list;
    for (const std::string& text : texts)
        list += (list.empty() ? "" : ", ") + text;
    return list;
}

std::vector<std::string> TextsOf(const std::vector<PropertyWord>& words) {
    std::vector<std::string> texts;
    for (const PropertyWord& word : words)
        texts.push_back(word.text);
    return texts;
}

std::optional<uint32_t> FindWord(const std::vector<PropertyWord>& words, const std::string& text) {
    for (const PropertyWord& word : words)
        if (IsSameName(word.text, text)) return word.value;
    return std::nullopt;
}

uint32_t ReadWord(const std::vector<PropertyWord>& words, const std::string& text) {
    const std::optional<uint32_t> value = FindWord(words, text);
    if (!value) ThrowNotOneOf(text, Listed(TextsOf(words)));
    return *value;
}

// Parses "255,0,0".
std::optional<uint32_t> ReadComponents(const std::string& text) {
    uint32_t rgb = 0;
    const char *at = text.data(), *const end = at + text.size();
    for (int i = 0; i < 3; ++i) {
        if (i > 0 && (at == end || *at++ != ',')) return std::nullopt;
        unsigned component = 0;
        const auto [stopped, error] = std::from_chars(at, end, component);
        if (error != std::errc() || component > 255) return std::nullopt;
        rgb = rgb << 8 | component;
        at = stopped;
    }
    return at == end ? std::optional<uint32_t>(rgb) : std::nullopt;
}

// Parses a color number as stored in group 62.
std::optional<uint32_t> ReadColorNumber(const std::string& text) {
    const std::optional<int> number = ParseNumber<int>(text);
    if (!number || *number < kIndexByBlock || *number > kIndexByLayer) return std::nullopt;
    return *number == kIndexByBlock ? kColorByBlock : *number == kIndexByLayer ? kColorByLayer : ColorOfIndex(*number);
}

} // namespace

uint32_t ReadColor(const std::string& text, bool ofBrush) {
    std::vector<PropertyWord> markers = WordsOf(PropertyMeaning::Color);
    if (!ofBrush) markers.pop_back(); // the color of the pen
    if (const std::optional<uint32_t> marker = FindWord(markers, text)) return *marker;
    for (int index = 1; index <= kColorNumbers; ++index)
        if (IsSameName(text, NameOfIndex(index))) return ColorOfIndex(index);
    if (const auto color = ReadColorNumber(text)) return *color;
    if (const auto components = ReadComponents(text)) return ColorOf(0, static_cast<int32_t>(*components));
    if (text.size() == 7 && text[0] == '#')
        if (const auto rgb = ParseNumber<uint32_t>(text.substr(1), 16)) return ColorOf(0, static_cast<int32_t>(*rgb));
    std::vector<std::string> allowed = TextsOf(markers);
    for (int index = 1; index <= 7; ++index)
        allowed.push_back(NameOfIndex(index));
    ThrowNotOneOf(text, Listed(allowed) + ", Color 8 to Color 255, 1 to 255, #RRGGBB, R,G,B");
}

namespace {

uint32_t ReadTextStyle(const std::string& text) {
    uint32_t bits = 0;
    for (size_t at = 0; !IsSameName(text, TextStyleText(0)) && at <= text.size();) {
        const size_t end = std::min(text.find('+', at), text.size());
        bits |= ReadWord(WordsOf(PropertyMeaning::TextStyle), text.substr(at, end - at));
        at = end + 1;
    }
    return bits;
}

std::string NumberText(double value) {
    constexpr int kDigits = 12;
    return drawcore::DecimalText(value, kDigits);
}

double ReadNumber(const std::string& text) {
    double value = 0;
    drawcore::TextCursor cursor(text);
    if (!drawcore::ReadCalculation(cursor, value) || !cursor.AtEnd() || value < 0)
        throw SaveError("'" + text + "' is not a non-negative number");
    return value;
}

uint32_t ReadInteger(const PropertyInfo& info, const std::string& text) {
    if (info.meaning == PropertyMeaning::Color) return ReadColor(text, info.part == PropertyPart::Brush);
    if (info.meaning == PropertyMeaning::TextStyle) return ReadTextStyle(text);
    const std::vector<PropertyWord>& words = WordsOf(info.meaning);
    if (!words.empty()) return ReadWord(words, text);
    const double number = ReadNumber(text);
    if (number != std::floor(number) || number > info.high) throw SaveError("'" + text + "' is out of range");
    return static_cast<uint32_t>(number);
}

template <class Index, class Object>
std::optional<Index> FindName(const std::vector<Object>& objects, const std::string& name) {
    for (size_t i = 0; i < objects.size(); ++i)
        if (IsSameName(ToDisplayText(objects[i].name), name)) return Index(i);
    return std::nullopt;
}

template <class Object>
std::vector<std::string> NamesOf(const std::vector<Object>& objects) {
    std::vector<std::string> names;
    for (const Object& object : objects)
        names.push_back(ToDisplayText(object.name));
    return names;
}

} // namespace

// Formats and parses values that are more than a number or a text.
struct PropertyForms {
    using Get = std::string (*)(const PropertyTexts&, const PropertyInfo&, const Appearance&);
    using Set = void (*)(const PropertyTexts&, const PropertyInfo&, const std::string&, Appearance&);

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
            throw SaveError("'" + text + "' is not a non-negative length, such as \"0.5 mm\"");
        return millimeters;
    }
    // Formats lengths with all digits, so that setting them again does not change them.
    static std::string LengthText(const PropertyTexts& of, double units) {
        const drawcore::LengthUnit& unit = DrawingUnit(of);
        constexpr int kDigits = 9;
        return drawcore::WriteLength(units * unit.millimeters, unit, {of.units_.lengthSystem, kDigits, false});
    }

    static std::string GetLayer(const PropertyTexts& of, const PropertyInfo&, const Appearance& appearance) {
        return ToDisplayText(of.document_.At(appearance.layer).name);
    }
    static void SetLayer(const PropertyTexts& of, const PropertyInfo&, const std::string& text,
                         Appearance& appearance) {
        const auto found = FindName<LayerIndex>(of.document_.layers, text);
        if (!found) ThrowNotOneOf(text, Listed(NamesOf(of.document_.layers)));
        appearance.layer = *found;
    }

    static std::string GetSystem(const PropertyTexts&, const PropertyInfo& info, const Appearance& appearance) {
        return IntegerText(info, appearance.worldWidth ? kScaleWorld : kScalePaper);
    }
    // A width in drawing units must be a number rather than a marker.
    static void SetSystem(const PropertyTexts& of, const PropertyInfo& info, const std::string& text,
                          Appearance& appearance) {
        appearance.worldWidth = ReadInteger(info, text) == kScaleWorld;
        const bool inherits = appearance.worldWidth && appearance.width < 0;
        if (inherits)
            appearance.width = appearance.width == kPenWidthByLayer
                                   ? std::max(of.document_.At(appearance.layer).lineWeight, 0) / kWeightsPerInch
                                   : 0;
    }

    static std::string GetWidth(const PropertyTexts& of, const PropertyInfo&, const Appearance& appearance) {
        if (appearance.width == kPenWidthByLayer) return ColorText(kColorByLayer);
        if (appearance.width == kPenWidthByBlock) return ColorText(kColorByBlock);
        if (appearance.worldWidth) return LengthText(of, appearance.width);
        constexpr int kDigits = 6;
        return drawcore::WriteLength(appearance.width * kMillimetersPerInch, PaperUnit(of),
                                     {drawcore::LengthSystem::Decimal, kDigits, true});
    }
    static void SetWidth(const PropertyTexts& of, const PropertyInfo&, const std::string& text,
                         Appearance& appearance) {
        const bool byLayer = IsSameName(text, ColorText(kColorByLayer));
        if (byLayer || IsSameName(text, ColorText(kColorByBlock))) {
            appearance.width = byLayer ? kPenWidthByLayer : kPenWidthByBlock;
            appearance.worldWidth = false;
        } else if (appearance.worldWidth)
            appearance.width = ReadLength(text, DrawingUnit(of)) / DrawingUnit(of).millimeters;
        else
            appearance.width = ReadLength(text, PaperUnit(of)) / kMillimetersPerInch;
    }

    static std::string GetLineType(const PropertyTexts& of, const PropertyInfo& info, const Appearance& appearance) {
        if (appearance.lineType < LineTypeIndex::none) return ToDisplayText(of.document_.At(appearance.lineType).name);
        return IntegerText(info, appearance.lineType == LineTypeIndex::byLayer   ? kLineStyleByLayer
                                 : appearance.lineType == LineTypeIndex::byBlock ? kLineStyleByBlock
                                                                                 : kLineStyleNone);
    }
    static void SetLineType(const PropertyTexts& of, const PropertyInfo& info, const std::string& text,
                            Appearance& appearance) {
        if (const std::optional<uint32_t> marker = FindWord(WordsOf(info.meaning), text))
            appearance.lineType = *marker == kLineStyleByLayer   ? LineTypeIndex::byLayer
                                  : *marker == kLineStyleByBlock ? LineTypeIndex::byBlock
                                                                 : LineTypeIndex::none;
        else if (const auto found = FindName<LineTypeIndex>(of.document_.lineTypes, text))
            appearance.lineType = *found;
        else
            ThrowNotOneOf(text,
                          Listed(TextsOf(WordsOf(info.meaning))) + ", " + Listed(NamesOf(of.document_.lineTypes)));
    }

    static std::string GetBrush(const PropertyTexts&, const PropertyInfo& info, const Appearance& appearance) {
        return appearance.brush.style.empty() ? IntegerText(info, kBrushStyleNone) : appearance.brush.style;
    }
    static void SetBrush(const PropertyTexts& of, const PropertyInfo& info, const std::string& text,
                         Appearance& appearance) {
        std::vector<std::string> allowed = {IntegerText(info, kBrushStyleNone)};
        const auto take = [&](const std::string& style, const std::vector<Hatch::PatternLine>& lines) {
            allowed.push_back(style);
            if (!IsSameName(style, text)) return false;
            appearance.brush.style = style;
            appearance.brush.lines = lines;
            return true;
        };
        if (IsSameName(text, allowed[0])) {
            appearance.brush.style.clear();
            appearance.brush.lines.clear();
            return;
        }
        for (const StandardBrush& brush : StandardBrushes())
            if (take(brush.name, brush.lines)) return;
        for (const BrushAppearance& brush : of.patterns_)
            if (take(brush.style, brush.lines)) return;
        ThrowNotOneOf(text, Listed(allowed));
    }

    static std::string GetPlain(const PropertyTexts& of, const PropertyInfo& info, const Appearance& appearance) {
        const std::optional<double> number = NumberOf(appearance, info.name);
        constexpr int kDigits = 9;
        if (!number) return TextOf(appearance, info.name);
        if (!info.IsReal()) return IntegerText(info, static_cast<uint32_t>(*number));
        if (info.meaning == PropertyMeaning::Length) return LengthText(of, *number);
        if (info.meaning == PropertyMeaning::Angle)
            return drawcore::WriteAngle(*number, {of.units_.angleSystem, kDigits});
        return NumberText(*number);
    }
    static void SetPlain(const PropertyTexts& of, const PropertyInfo& info, const std::string& text,
                         Appearance& appearance) {
        if (info.IsText()) return SetText(appearance, info.name, text);
        if (info.meaning == PropertyMeaning::Block) {
            if (!text.empty() && !FindName<BlockIndex>(of.document_.blocks, text))
                ThrowNotOneOf(text, "the blocks " + Listed(NamesOf(of.document_.blocks)));
            return SetText(appearance, info.name, text);
        }
        SetNumber(appearance, info.name, info.IsReal() ? ReadReal(of, info, text) : ReadInteger(info, text));
    }
    static double ReadReal(const PropertyTexts& of, const PropertyInfo& info, const std::string& text) {
        if (info.meaning == PropertyMeaning::Angle) {
            double angle = 0;
            if (!drawcore::ReadAngle(text, of.units_.angleSystem, angle))
                throw SaveError("'" + text + "' is not an angle");
            return angle;
        }
        const bool isLength = info.meaning == PropertyMeaning::Length;
        const double value =
            isLength ? ReadLength(text, DrawingUnit(of)) / DrawingUnit(of).millimeters : ReadNumber(text);
        if (value < info.low || value > info.high)
            throw SaveError(info.name == std::string_view(kPropTextSize) ? "the height of a text must be greater than 0"
                                                                         : "'" + text + "' is out of range");
        return value;
    }
};

const PropertyForms PropertyForms::kAll[] = {
    {kPropLayer, GetLayer, SetLayer},      {kPropScaleSystem, GetSystem, SetSystem},
    {kPropPenWidth, GetWidth, SetWidth},   {kPropPenStyle, GetLineType, SetLineType},
    {kPropBrushStyle, GetBrush, SetBrush},
};

const PropertyForms* PropertyForms::Find(std::string_view name) {
    for (const PropertyForms& forms : kAll)
        if (name == forms.name) return &forms;
    return nullptr;
}

namespace {

// Compares lengths first (string_view), because this is called for every property of every entity.
const PropertyInfo& InfoOf(std::string_view name) {
    static const std::vector<std::string_view> kNames = [] {
        std::vector<std::string_view> names;
        for (const PropertyInfo& info : kPropertyList)
            names.emplace_back(info.name);
        return names;
    }();
    auto found = std::find(kNames.begin(), kNames.end(), name); // as most callers write it
    if (found == kNames.end())
        found = std::find_if(kNames.begin(), kNames.end(), [&](auto known) { return IsSameName(known, name); });
    return kPropertyList[found - kNames.begin()];
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
        if (!As<Hatch>(entity)) continue;
        BrushAppearance brush = AppearanceOf(document_, entity).brush;
        const auto known = [&](const BrushAppearance& other) { return other.style == brush.style; };
        if (!brush.lines.empty() && std::none_of(patterns_.begin(), patterns_.end(), known))
            patterns_.push_back(std::move(brush));
    }
}

std::vector<std::string> PropertyTexts::Names() {
    std::vector<std::string> names;
    for (const PropertyInfo& info : kPropertyList)
        names.push_back(info.name);
    const auto rank = [](const std::string& name) {
        const PropertyInfo& info = *FindPropertyInfo(name);
        return std::make_pair(info.part, info.meaning != PropertyMeaning::ScaleSystem); // before the width
    };
    std::stable_sort(names.begin(), names.end(),
                     [&](const std::string& a, const std::string& b) { return rank(a) < rank(b); });
    return names;
}

std::optional<std::string> PropertyTexts::NameOf(std::string_view name) {
    for (const PropertyInfo& info : kPropertyList)
        if (IsSameName(info.name, name)) return info.name;
    return std::nullopt;
}

std::optional<double> PropertyTexts::NumberOf(std::string_view name, const Appearance& appearance) {
    const PropertyInfo& info = InfoOf(name);
    if (info.name == std::string_view(kPropPenWidth)) {
        if (appearance.width < 0) return std::nullopt;
        return appearance.worldWidth ? appearance.width : appearance.width * kMillimetersPerInch;
    }
    return info.IsReal() ? dxf::NumberOf(appearance, info.name) : std::nullopt;
}

bool PropertyTexts::HasAny(const Entity& entity) {
    return !As<Viewport>(entity);
}

bool PropertyTexts::Has(const Entity& entity, std::string_view name) {
    const auto is = [&](auto... kinds) { return (std::holds_alternative<decltype(kinds)>(entity.shape) || ...); };
    if (!HasAny(entity)) return false;
    const int owner = is(Boxed<Text>(), Boxed<MText>())         ? kOfTexts
                      : is(Boxed<Insert>(), Boxed<Dimension>()) ? kOfInserts
                                                                : kOfShapes;
    return InfoOf(name).owners & owner;
}

std::string PropertyTexts::Get(std::string_view name, const Appearance& appearance) const {
    const PropertyInfo& info = InfoOf(name);
    const PropertyForms* forms = PropertyForms::Find(info.name);
    return forms ? forms->get(*this, info, appearance) : PropertyForms::GetPlain(*this, info, appearance);
}

void PropertyTexts::Set(std::string_view name, const std::string& text, Appearance& appearance) const {
    const PropertyInfo& info = InfoOf(name);
    try {
        const PropertyForms* forms = PropertyForms::Find(info.name);
        (forms ? forms->set : PropertyForms::SetPlain)(*this, info, text, appearance);
        appearance.varied &= static_cast<uint8_t>(~VariedBit(info.name));
    } catch (const SaveError& error) {
        throw SaveError(std::string(info.name) + ": " + error.what());
    }
}

bool SameAppearance(const Document& a, const Appearance& one, const Document& b, const Appearance& other) {
    const auto isSame = [](const std::string& first, const std::string& second) {
        return first == second || IsSameName(ToDisplayText(first), ToDisplayText(second));
    };
    const bool isNamed = one.lineType < LineTypeIndex::none && other.lineType < LineTypeIndex::none;
    if (!isSame(a.At(one.layer).name, b.At(other.layer).name)) return false;
    if (!isNamed && one.lineType != other.lineType) return false;
    if (isNamed && !isSame(a.At(one.lineType).name, b.At(other.lineType).name)) return false;
    if (one.layer == other.layer && one.lineType == other.lineType) return one == other;
    Appearance adapted = other;
    adapted.layer = one.layer;
    adapted.lineType = one.lineType;
    return adapted == one;
}

} // namespace dxf
