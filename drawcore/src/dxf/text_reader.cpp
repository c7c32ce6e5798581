// Reads TEXT, MTEXT and the attributes of insertions.

#include <algorithm>
#include <cmath>
#include <optional>

#include "drawcore/src/dxf/entity_reader.h"
#include "drawcore/src/dxf/placement.h"

namespace dxf {

namespace {

// Bits and numbers of text groups; attributes use another code for the vertical alignment.
struct TextCodes {
    int verticalCode;
    int generation = 0;
    int horizontal = 0;
    int vertical = 0;
    int attributeFlags = 0;

    bool Read(const Tag& tag) {
        if (tag.code == verticalCode)
            vertical = tag.Integer();
        else if (tag.code == 70)
            attributeFlags = tag.Integer();
        else if (tag.code == 71)
            generation = tag.Integer();
        else if (tag.code == 72)
            horizontal = tag.Integer();
        else
            return false;
        return true;
    }
};

const Field<Text> kText[] = {
    {1, &Text::text},     {10, &Text::insertion},   {11, &Text::alignment},
    {40, &Text::height},  {41, &Text::widthFactor}, {50, &Text::rotation},
    {51, &Text::oblique}, {7, &Text::style},        {2, &Text::tag}, // of an attribute
};

enum AttributeFlags { kHidden = 1, kConstant = 2 };

void SetCodes(Text& text, const TextCodes& codes) {
    text.backward = (codes.generation & 2) != 0;
    text.upsideDown = (codes.generation & 4) != 0;
    text.horizontal = Text::Horizontal(std::clamp(codes.horizontal, 0, 5));
    text.vertical = Text::Vertical(std::clamp(codes.vertical, 0, 3));
    text.hidden = (codes.attributeFlags & kHidden) != 0;
}

} // namespace

// Reads a TEXT, ATTRIB or ATTDEF.
void EntityReader::ReadText(Entity& entity) {
    const bool isAttribute = in_.tags.Current().Is(0, "ATTRIB"), isDefinition = in_.tags.Current().Is(0, "ATTDEF");
    Text& text = *entity.shape.emplace<Boxed<Text>>(std::make_unique<Text>());
    text.style = TextStyleIndex(in_.textStyles.Find("STANDARD"));
    TextCodes codes{isAttribute || isDefinition ? 74 : 73};
    while (in_.NextTag()) {
        const Tag& tag = in_.tags.Current();
        if (!in_.SetField(kText, text, tag) && !codes.Read(tag)) SetCommon(entity);
    }
    SetCodes(text, codes);
    if (isAttribute)
        text.role = Text::Role::attribute;
    else if (isDefinition && !(codes.attributeFlags & kConstant))
        text.role = Text::Role::definition;
}

void EntityReader::ReadAttributesOf(Insert& insert) {
    const Tag& tag = in_.tags.Current();
    if (!tag.Is(0, "ATTRIB")) return;
    while (tag.Is(0, "ATTRIB")) {
        Count();
        Entity attribute = NewEntity();
        ReadText(attribute);
        TakeExtended(attribute);
        insert.attributes.push_back(std::move(attribute));
    }
    SkipSequenceEnd();
}

void EntityReader::ReadMText(Entity& entity) {
    static const Field<MText> kFields[] = {
        {10, &MText::insertion},  {40, &MText::height},      {41, &MText::width},
        {71, &MText::attachment}, {44, &MText::lineSpacing}, {7, &MText::style},
    };
    MText& text = *entity.shape.emplace<Boxed<MText>>(std::make_unique<MText>());
    text.style = TextStyleIndex(in_.textStyles.Find("STANDARD"));
    std::string bytes;           // decoded as a whole, since a character may be split between pieces
    std::optional<double> angle; // the last of angle and direction is used
    while (in_.NextTag()) {
        const Tag& tag = in_.tags.Current();
        if (tag.code == 1 || tag.code == 3) {
            bytes += tag.value;
        } else if (tag.code == 50) {
            angle = Radians(in_.Real(tag));
        } else if (tag.code == 11 || tag.code == 21 || tag.code == 31) {
            in_.SetAxis(text.direction, tag, tag.code - 11);
            angle.reset();
        } else if (!in_.SetField(kFields, text, tag)) {
            SetCommon(entity);
        }
    }
    if (angle) text.direction = ObjectSystem(entity.normal).ApplyToVector({std::cos(*angle), std::sin(*angle), 0});
    text.text = in_.decoder.Decode(bytes);
    text.attachment = std::clamp(text.attachment, 1, 9);
}

} // namespace dxf
