// Determines the appearance of an entity from its groups and its extended data.
#include "drawcore/src/dxf/look.h"

#include <algorithm>
#include <cmath>
#include <tuple>

#include "drawcore/src/dxf/color_numbers.h"
#include "drawcore/src/dxf/look_parts.h"
#include "drawcore/src/dxf/standard_brushes.h"
#include "drawcore/src/dxf/text_decoding.h"

namespace dxf {

namespace {

class LookByShape {
public:
    LookByShape(const Document& document, Look& look) : document_(document), look_(look) {}

    template <class Other>
    void operator()(const Other&) {}
    void operator()(const Polyline& polyline) {
        look_.dashesFitted = !polyline.dashesThrough;
        if (polyline.kind != Polyline::Kind::flat || polyline.vertices.empty()) return;
        const double width = polyline.vertices[0].startWidth;
        if (!HasOneWidth(polyline) || width <= 0) return;
        look_.width = width;
        look_.worldWidth = true;
    }
    void operator()(const Apart<Face>& face) {
        if (face->filled) look_.brush.style = kSolidBrush;
    }
    void operator()(const Apart<Hatch>& hatch) {
        look_.brush = BrushOf(*hatch);
        if (!look_.brush.style.empty()) look_.lineType = LineTypeIndex::none; // a hatch has no outline
    }
    void operator()(const Apart<Text>& text) {
        look_.text = TextLookOf(*text, document_.At(text->style));
        if (look_.text.style & (kTextUnderline | kTextStrikethrough) && IsPartlyMarked(*text))
            look_.varied = kVariedStyle;
    }
    void operator()(const Apart<MText>& text) {
        const FormattedText formatted = ReadInlineCodes(text->text, HeightOf(*text, document_));
        const InlineFormat format = formatted.Prevailing();
        look_.varied = VariedBits(formatted, format);
        look_.text = TextLookOf(*text, document_.At(text->style), format);
        if (format.color >= 0 || format.trueColor >= 0) look_.color = ColorOf(format.color, format.trueColor);
    }

private:
    const Document& document_;
    Look& look_;
};

// Extended values by property. Numbers must be finite, and there must be at least as many as the row requires.
struct OwnRow {
    const char* name;
    size_t count;
    void (*apply)(const OwnValue& value, const Document& document, const Entity& entity, Look& look);
};

bool IsBit(double number) {
    return number == 0 || number == 1;
}

double WidthOf(int lineWeight) {
    if (lineWeight == kLineWeightByLayer) return kPenWidthByLayer;
    if (lineWeight == kLineWeightByBlock) return kPenWidthByBlock;
    return std::max(lineWeight, 0) / kWeightsPerInch;
}

bool IsWidth(double number) {
    return number >= 0 || number == kPenWidthByLayer || number == kPenWidthByBlock;
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
constexpr OwnRow kOwnRows[] = {
    {kPropPenColor, 2,
     [](const OwnValue& own, const Document&, const Entity& entity, Look& look) {
         if (entity.trueColor < 0 && entity.color == own.numbers[1]) look.color = ToColor(own.numbers[0], look.color);
     }},
    {kPropPenStyle, 0,
     [](const OwnValue& own, const Document& document, const Entity&, Look& look) {
         look.lineType = FindLineType(document, own.text);
     }},
    {kPropPenWidth, 3,
     [](const OwnValue& own, const Document&, const Entity& entity, Look& look) {
         if (!IsWidth(own.numbers[0]) || !IsBit(own.numbers[1]) || entity.lineWeight != own.numbers[2]) return;
         look.width = own.numbers[0];
         look.worldWidth = own.numbers[1] != 0;
     }},
    {kPropBrushStyle, 0,
     [](const OwnValue& own, const Document&, const Entity&, Look& look) {
         std::vector<Hatch::PatternLine> lines;
         if (!LinesFromNumbers(own.numbers, lines)) return;
         look.brush.style = own.text;
         look.brush.lines = lines.empty() ? StandardLines(own.text) : std::move(lines);
     }},
    {kPropBrushColor, 1,
     [](const OwnValue& own, const Document&, const Entity&, Look& look) {
         // With two numbers, the groups contain the brush's color, and the other number is the pen's.
         const uint32_t color = ToColor(own.numbers[0], look.brush.color);
         const bool inGroups = own.numbers.size() > 1;
         if (inGroups && look.color != color) return;
         look.brush.color = color;
         if (inGroups) look.color = ToColor(own.numbers[1], look.color);
     }},
    {kPropBrushAngle, 1,
     [](const OwnValue& own, const Document&, const Entity&, Look& look) {
         if (own.numbers.size() > 1 && own.numbers[1] != look.brush.angle) return;
         look.brush.angle = own.numbers[0];
     }},
    {kPropTextStyle, 1,
     [](const OwnValue& own, const Document&, const Entity&, Look& look) {
         if (own.numbers[0] >= 0 && own.numbers[0] <= UINT16_MAX)
             look.text.style |= static_cast<uint16_t>(own.numbers[0]);
     }},
};

// Properties with groups whose extended values are applied directly, within their limits.
constexpr const char* kPlain[] = {kPropPenScale,      kPropPenAlignment, kPropBrushScale, kPropHatchCross,
                                  kPropBrushDrawMode, kPropTextFont,     kPropTextFormat};

void ApplyPlain(const OwnValue& own, const PropertyInfo& property, Look& look) {
    if (property.IsText() || property.meaning == PropertyMeaning::Block) return SetText(look, property.name, own.text);
    const double number = own.numbers.empty() ? NAN : own.numbers[0];
    const bool isOfType = property.IsReal() || number == std::floor(number);
    if (isOfType && number >= property.low && number <= property.high) SetNumber(look, property.name, number);
}

} // namespace

Look LookByGroups(const Document& document, const Entity& entity) {
    Look look;
    std::visit(LookByShape(document, look), entity.shape);
    look.layer = entity.layer;
    if (look.color == kColorByLayer) look.color = ColorOf(std::abs(entity.color), entity.trueColor);
    if (entity.lineTypeScale > 0) look.lineScale = entity.lineTypeScale;
    if (look.lineType == LineTypeIndex::byLayer) look.lineType = entity.lineType;
    if (look.width == 0) look.width = WidthOf(entity.lineWeight);
    return look;
}

Look LookOf(const Document& document, const Entity& entity) {
    Look look = LookByGroups(document, entity);
    if (!entity.own) return look;
    for (const OwnRow& row : kOwnRows) {
        const OwnValue* own = FindOwn(entity, row.name);
        if (own && own->numbers.size() >= row.count) row.apply(*own, document, entity, look);
    }
    for (const OwnValue& own : *entity.own) {
        const PropertyInfo* property = FindPropertyInfo(own.name);
        const auto isRow = [&](const char* name) { return own.name == name; };
        if (!property || FindOwn(entity, own.name) != &own) continue; // only the first of equal names is used
        if (!property->hasDxfGroup || std::any_of(std::begin(kPlain), std::end(kPlain), isRow))
            ApplyPlain(own, *property, look);
    }
    return look;
}

const OwnValue* FindOwn(const OwnData& data, std::string_view name) {
    for (const OwnValue& value : data)
        if (value.name == name) return &value;
    return nullptr;
}

const OwnValue* FindOwn(const Entity& entity, std::string_view name) {
    return entity.own ? FindOwn(*entity.own, name) : nullptr;
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

bool operator==(const BrushLook& a, const BrushLook& b) {
    const bool sameStyle = a.lines.empty() && b.lines.empty() ? a.style == b.style : SameLines(a.lines, b.lines);
    const auto values = [](const BrushLook& look) {
        return std::tie(look.color, look.scale, look.angle, look.cross, look.winding);
    };
    return sameStyle && a.style.empty() == b.style.empty() && values(a) == values(b);
}

bool operator==(const TextLook& a, const TextLook& b) {
    const auto values = [](const TextLook& look) { return std::tie(look.font, look.height, look.style, look.format); };
    return values(a) == values(b);
}

bool operator==(const Look& a, const Look& b) {
    const auto values = [](const Look& look) {
        return std::tie(look.layer, look.color, look.lineType, look.lineScale, look.width, look.worldWidth,
                        look.dashesFitted, look.extended, look.brush, look.text, look.varied);
    };
    return values(a) == values(b);
}

} // namespace dxf
