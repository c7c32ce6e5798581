// Determines the appearance of an entity from its groups and its extended data.
#include "drawcore/src/dxf/appearance.h"

#include <algorithm>
#include <cmath>
#include <tuple>

#include "drawcore/src/dxf/appearance_parts.h"
#include "drawcore/src/dxf/color_numbers.h"
#include "drawcore/src/dxf/standard_brushes.h"
#include "drawcore/src/dxf/text_decoding.h"

namespace dxf {

namespace {

class AppearanceByShape {
public:
    AppearanceByShape(const Document& document, Appearance& appearance)
        : document_(document), appearance_(appearance) {}

    template <class Other>
    void operator()(const Other&) {}
    void operator()(const Polyline& polyline) {
        appearance_.dashesFitted = !polyline.dashesThrough;
        if (polyline.kind != Polyline::Kind::flat || polyline.vertices.empty()) return;
        const double width = polyline.vertices[0].startWidth;
        if (!HasOneWidth(polyline) || width <= 0) return;
        appearance_.width = width;
        appearance_.worldWidth = true;
    }
    void operator()(const Boxed<Face>& face) {
        if (face->filled) appearance_.brush.style = kSolidBrush;
    }
    void operator()(const Boxed<Hatch>& hatch) {
        appearance_.brush = BrushOf(*hatch);
        if (!appearance_.brush.style.empty()) appearance_.lineType = LineTypeIndex::none; // a hatch has no outline
    }
    void operator()(const Boxed<Text>& text) {
        appearance_.text = TextAppearanceOf(*text, document_.At(text->style));
        if (appearance_.text.style & (kTextUnderline | kTextStrikethrough) && IsPartlyMarked(*text))
            appearance_.varied = kVariedStyle;
    }
    void operator()(const Boxed<MText>& text) {
        const FormattedText formatted = ReadInlineCodes(text->text, HeightOf(*text, document_));
        const InlineFormat format = formatted.DominantFormat();
        appearance_.varied = VariedBits(formatted, format);
        appearance_.text = TextAppearanceOf(*text, document_.At(text->style), format);
        if (format.color >= 0 || format.trueColor >= 0) appearance_.color = ColorOf(format.color, format.trueColor);
    }

private:
    const Document& document_;
    Appearance& appearance_;
};

// Extended values by property. Numbers must be finite, and there must be at least as many as the row requires.
struct ExtendedRow {
    const char* name;
    size_t count;
    void (*apply)(const ExtendedValue& value, const Document& document, const Entity& entity, Appearance& appearance);
};

bool IsBit(double number) {
    return number == 0 || number == 1;
}

double WidthOf(int lineWeight) {
    if (lineWeight == kLineWeightByLayer) return kPenWidthByLayer;
    if (lineWeight == kLineWeightByBlock) return kPenWidthByBlock;
    return std::max(lineWeight, 0) / kWeightsPerInch;
}

// Inherited widths have the numbers of line weights.
bool IsWidth(double number) {
    return number >= 0 || number == kLineWeightByLayer || number == kLineWeightByBlock;
}

uint32_t ToColor(double number, uint32_t otherwise) {
    return number >= 0 && number <= UINT32_MAX ? static_cast<uint32_t>(number) : otherwise;
}

LineTypeIndex FindLineType(const Document& document, const std::string& name) {
    if (name.empty()) return LineTypeIndex::none;
    if (name == kByLayerName) return LineTypeIndex::byLayer;
    if (name == kByBlockName) return LineTypeIndex::byBlock;
    for (size_t i = 0; i < document.lineTypes.size(); ++i)
        if (ToDisplayText(document.lineTypes[i].name) == name) return LineTypeIndex(i);
    return LineTypeIndex::byLayer;
}

// If a group contains a similar value, the extended value includes that of the group: if another program has changed
// the group since, the group is used.
constexpr ExtendedRow kExtendedRows[] = {
    {kPropPenColor, 2,
     [](const ExtendedValue& extended, const Document&, const Entity& entity, Appearance& appearance) {
         if (entity.trueColor < 0 && entity.color == extended.numbers[1])
             appearance.color = ToColor(extended.numbers[0], appearance.color);
     }},
    {kPropPenStyle, 0,
     [](const ExtendedValue& extended, const Document& document, const Entity&, Appearance& appearance) {
         appearance.lineType = FindLineType(document, extended.text);
     }},
    {kPropPenWidth, 3,
     [](const ExtendedValue& extended, const Document&, const Entity& entity, Appearance& appearance) {
         if (!IsWidth(extended.numbers[0]) || !IsBit(extended.numbers[1]) || entity.lineWeight != extended.numbers[2])
             return;
         appearance.width =
             extended.numbers[0] < 0 ? WidthOf(static_cast<int>(extended.numbers[0])) : extended.numbers[0];
         appearance.worldWidth = extended.numbers[1] != 0;
     }},
    {kPropBrushStyle, 0,
     [](const ExtendedValue& extended, const Document&, const Entity&, Appearance& appearance) {
         std::vector<Hatch::PatternLine> lines;
         if (!LinesFromNumbers(extended.numbers, lines)) return;
         appearance.brush.style = extended.text;
         appearance.brush.lines = lines.empty() ? StandardLines(extended.text) : std::move(lines);
     }},
    {kPropBrushColor, 1,
     [](const ExtendedValue& extended, const Document&, const Entity&, Appearance& appearance) {
         // With two numbers, the groups contain the brush's color, and the other number is the pen's.
         const uint32_t color = ToColor(extended.numbers[0], appearance.brush.color);
         const bool inGroups = extended.numbers.size() > 1;
         if (inGroups && appearance.color != color) return;
         appearance.brush.color = color;
         if (inGroups) appearance.color = ToColor(extended.numbers[1], appearance.color);
     }},
    {kPropBrushAngle, 1,
     [](const ExtendedValue& extended, const Document&, const Entity&, Appearance& appearance) {
         if (extended.numbers.size() > 1 && extended.numbers[1] != appearance.brush.angle) return;
         appearance.brush.angle = extended.numbers[0];
     }},
    {kPropTextStyle, 1,
     [](const ExtendedValue& extended, const Document&, const Entity&, Appearance& appearance) {
         if (extended.numbers[0] >= 0 && extended.numbers[0] <= UINT16_MAX)
             appearance.text.style |= static_cast<uint16_t>(extended.numbers[0]);
     }},
};

// Properties with groups whose extended values are applied directly, within their limits.
constexpr const char* kPlain[] = {kPropPenScale,      kPropPenAlignment, kPropBrushScale, kPropHatchCross,
                                  kPropBrushDrawMode, kPropTextFont,     kPropTextFormat};

void ApplyPlain(const ExtendedValue& extended, const PropertyInfo& property, Appearance& appearance) {
    if (property.IsText() || property.meaning == PropertyMeaning::Block)
        return SetText(appearance, property.name, extended.text);
    const double number = extended.numbers.empty() ? NAN : extended.numbers[0];
    const bool isOfType = property.IsReal() || number == std::floor(number);
    if (isOfType && number >= property.low && number <= property.high) SetNumber(appearance, property.name, number);
}

} // namespace

Appearance AppearanceByGroups(const Document& document, const Entity& entity) {
    Appearance appearance;
    std::visit(AppearanceByShape(document, appearance), entity.shape);
    appearance.layer = entity.layer;
    if (appearance.color == kColorByLayer) appearance.color = ColorOf(std::abs(entity.color), entity.trueColor);
    if (entity.lineTypeScale > 0) appearance.lineScale = entity.lineTypeScale;
    if (appearance.lineType == LineTypeIndex::byLayer) appearance.lineType = entity.lineType;
    if (appearance.width == 0) appearance.width = WidthOf(entity.lineWeight);
    return appearance;
}

Appearance AppearanceOf(const Document& document, const Entity& entity) {
    Appearance appearance = AppearanceByGroups(document, entity);
    if (!entity.extended) return appearance;
    for (const ExtendedRow& row : kExtendedRows) {
        const ExtendedValue* extended = FindExtended(entity, row.name);
        if (extended && extended->numbers.size() >= row.count) row.apply(*extended, document, entity, appearance);
    }
    for (const ExtendedValue& extended : *entity.extended) {
        const PropertyInfo* property = FindPropertyInfo(extended.name);
        const auto isRow = [&](const char* name) { return extended.name == name; };
        if (!property || FindExtended(entity, extended.name) != &extended)
            continue; // only the first of equal names is used
        if (!property->hasDxfGroup || std::any_of(std::begin(kPlain), std::end(kPlain), isRow))
            ApplyPlain(extended, *property, appearance);
    }
    return appearance;
}

const ExtendedValue* FindExtended(const ExtendedData& data, std::string_view name) {
    for (const ExtendedValue& value : data)
        if (value.name == name) return &value;
    return nullptr;
}

const ExtendedValue* FindExtended(const Entity& entity, std::string_view name) {
    return entity.extended ? FindExtended(*entity.extended, name) : nullptr;
}

bool HasOneWidth(const Polyline& polyline) {
    return std::all_of(polyline.vertices.begin(), polyline.vertices.end(), [&](const Polyline::Vertex& vertex) {
        const double width = polyline.vertices[0].startWidth;
        return vertex.startWidth == width && vertex.endWidth == width;
    });
}

bool Near(double a, double b) {
    return std::fabs(a - b) <= 1e-9 * std::max({1.0, std::fabs(a), std::fabs(b)});
}

bool Near(const Vec3& a, const Vec3& b) {
    return Near(a.x, b.x) && Near(a.y, b.y) && Near(a.z, b.z);
}

bool SameToRounding(double a, double b, double magnitude) {
    return std::fabs(a - b) <= 1e-12 * std::max({1.0, std::fabs(a), std::fabs(b), magnitude});
}

uint8_t VariedBit(std::string_view property) {
    return property == kPropPenColor     ? kVariedColor
           : property == kPropTextFont   ? kVariedFont
           : property == kPropTextSize   ? kVariedSize
           : property == kPropTextStyle  ? kVariedStyle
           : property == kPropTextFormat ? kVariedFormat
                                         : 0;
}

bool operator==(const BrushAppearance& a, const BrushAppearance& b) {
    const bool sameStyle = a.lines.empty() && b.lines.empty() ? a.style == b.style : SameLines(a.lines, b.lines);
    const auto values = [](const BrushAppearance& appearance) {
        return std::tie(appearance.color, appearance.scale, appearance.angle, appearance.cross, appearance.winding);
    };
    return sameStyle && a.style.empty() == b.style.empty() && values(a) == values(b);
}

bool operator==(const TextAppearance& a, const TextAppearance& b) {
    const auto values = [](const TextAppearance& appearance) {
        return std::tie(appearance.font, appearance.height, appearance.style, appearance.format);
    };
    return values(a) == values(b);
}

bool operator==(const Appearance& a, const Appearance& b) {
    const auto values = [](const Appearance& appearance) {
        return std::tie(appearance.layer, appearance.color, appearance.lineType, appearance.lineScale, appearance.width,
                        appearance.worldWidth, appearance.dashesFitted, appearance.extended, appearance.brush,
                        appearance.text, appearance.varied);
    };
    return values(a) == values(b);
}

} // namespace dxf
