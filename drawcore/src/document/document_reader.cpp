// Reads the contents of a document and the properties of its entities.
#include <charconv>
#include <cstdlib>

#include "drawcore/src/document/contents.h"
#include "drawcore/src/document/entity_texts.h"
#include "drawcore/src/document/property_texts.h"
#include "drawcore/src/dxf/color_numbers.h"
#include "drawcore/src/dxf/extents.h"
#include "drawcore/src/dxf/reader.h"
#include "drawcore/src/dxf/record_name.h"
#include "drawcore/src/dxf/tag_reader.h"
#include "drawcore/src/dxf/text_decoding.h"
#include "drawcore/src/units/property_words.h"

namespace dxf {

Contents ContentsOf(const Document& document) {
    Contents contents;
    contents.version = document.header.version;
    contents.entityCounts = document.entityCounts;
    for (const Block& block : document.blocks)
        contents.blocks += block.declared;
    for (const Layer& layer : document.layers) {
        if (!layer.declared) continue;
        const uint32_t color = layer.trueColor >= 0 ? ColorOf(0, layer.trueColor) : ColorOfIndex(std::abs(layer.color));
        contents.layers.push_back({layer.name, layer.color, layer.flags, layer.lineType, layer.trueColor,
                                   layer.lineWeight, layer.plotted, drawcore::ColorText(color)});
    }
    for (const LineType& type : document.lineTypes)
        if (type.declared) contents.lineTypes.push_back({type.name, type.patternLength, type.dashes});
    const drawcore::Extents box = ExtentsOf(document);
    if (!box.IsEmpty()) contents.box = {box.low.x, box.low.y, box.high.x, box.high.y};
    contents.warnings = document.warnings;
    return contents;
}

DocumentReader::DocumentReader(std::string bytes, const std::function<void(int permille)>& progress)
    : bytes_(std::move(bytes)), document_(std::make_unique<const Document>(Read(bytes_, progress))),
      texts_(std::make_unique<const PropertyTexts>(*document_)),
      entityTexts_(std::make_unique<const EntityTexts>(*document_)),
      extents_(std::make_unique<EntityExtents>(*document_)) {}

DocumentReader::~DocumentReader() = default;

std::string_view DocumentReader::Text() const {
    return TextOf(bytes_);
}

Contents DocumentReader::GetContents() const {
    return ContentsOf(*document_);
}

void DocumentReader::AddEntities(const Block* block, std::vector<EntityRef>& to, Space space) const {
    const auto add = [&](const Entity& entity, const Entity* insertion) {
        if (PropertyTexts::HasAny(entity)) to.push_back({entity, block, insertion});
    };
    const std::vector<Entity>& entities = block ? block->entities : document_->entities;
    if (to.empty()) to.reserve(entities.size());
    for (const Entity& entity : entities) {
        if (!block && entity.inPaperSpace != (space == Space::paper)) continue;
        add(entity, nullptr);
        if (const auto* insert = As<Insert>(entity))
            for (const Entity& attribute : insert->attributes)
                add(attribute, &entity);
    }
}

std::vector<EntityRef> DocumentReader::PaperEntities() const {
    std::vector<EntityRef> found;
    AddEntities(nullptr, found, Space::paper);
    return found;
}

std::vector<EntityRef> DocumentReader::Entities() const {
    std::vector<EntityRef> all;
    AddEntities(nullptr, all);
    for (const Block& block : document_->blocks)
        AddEntities(&block, all);
    return all;
}

std::vector<EntityRef> DocumentReader::EntitiesOf(const std::string& name) const {
    std::vector<EntityRef> found;
    if (name.empty()) {
        AddEntities(nullptr, found);
        return found;
    }
    std::string names;
    for (const Block& block : document_->blocks) {
        const std::string shown = ToDisplayText(block.name);
        if (IsSameName(shown, name)) {
            AddEntities(&block, found);
            return found;
        }
        names += (names.empty() ? "" : ", ") + shown;
    }
    throw SaveError(names.empty() ? "block: the drawing has no blocks"
                                  : "block: '" + name + "' is not one of " + names);
}

RecordName DocumentReader::NameOf(const EntityRef& entity) const {
    RecordName name = NameOfRecord(Text(), entity.entity_->offset, entity.entity_->line);
    if (entity.block_) name.block = ToDisplayText(entity.block_->name);
    return name;
}

std::vector<std::string> DocumentReader::PropertyNames() {
    std::vector<std::string> names = PropertyTexts::Names();
    const std::vector<std::string> others = EntityTexts::Names();
    names.insert(names.end(), others.begin(), others.end());
    return names;
}

std::optional<std::string> DocumentReader::FindPropertyName(std::string_view name) {
    const auto found = PropertyTexts::NameOf(name);
    return found ? found : EntityTexts::NameOf(name);
}

bool DocumentReader::Has(const EntityRef& entity, std::string_view name) {
    if (EntityTexts::IsName(name)) return EntityTexts::Has(*entity.entity_, name);
    return PropertyTexts::Has(*entity.entity_, name);
}

std::string DocumentReader::Get(const EntityRef& entity, std::string_view name) const {
    if (EntityTexts::IsName(name)) return entityTexts_->Get(name, *entity.entity_);
    return texts_->Get(name, AppearanceOf(*document_, *entity.entity_));
}

std::vector<std::pair<std::string, std::string>> DocumentReader::GetAll(const EntityRef& ref,
                                                                        const std::vector<std::string>& names) const {
    const Entity& entity = *ref.entity_;
    const Appearance appearance = AppearanceOf(*document_, entity);
    std::vector<std::pair<std::string, std::string>> values;
    for (const std::string& name : names) {
        const bool isOfSheet = !EntityTexts::IsName(name);
        if (isOfSheet && PropertyTexts::Has(entity, name))
            values.emplace_back(name, texts_->Get(name, appearance));
        else if (!isOfSheet && EntityTexts::Has(entity, name))
            values.emplace_back(name, entityTexts_->Get(name, entity));
    }
    return values;
}

std::string DocumentReader::Normalized(const EntityRef& entity, std::string_view name, const std::string& text) const {
    if (EntityTexts::IsName(name)) return entityTexts_->Normalized(name, text);
    Appearance appearance = AppearanceOf(*document_, *entity.entity_);
    try {
        texts_->Set(name, text, appearance);
    } catch (const SaveError&) {
        return text;
    }
    return texts_->Get(name, appearance);
}

std::optional<double> DocumentReader::NumberOf(const EntityRef& entity, std::string_view name,
                                               const std::string& text) const {
    if (EntityTexts::IsName(name)) return ParseNumber<double>(text);
    Appearance appearance = AppearanceOf(*document_, *entity.entity_);
    try {
        texts_->Set(name, text, appearance);
    } catch (const SaveError&) {
        return std::nullopt;
    }
    return PropertyTexts::NumberOf(name, appearance);
}

std::string DocumentReader::GetForDisplay(const EntityRef& entity, std::string_view name) const {
    if (EntityTexts::IsName(name)) return entityTexts_->Get(name, *entity.entity_);
    const bool varies = AppearanceOf(*document_, *entity.entity_).varied & VariedBit(name);
    return Get(entity, name) + (varies ? " (varies)" : "");
}

bool DocumentReader::HasSameProperties(const EntityRef& entity, const DocumentReader& other,
                                       const EntityRef& otherEntity) const {
    return SameAppearance(*document_, AppearanceOf(*document_, *entity.entity_), *other.document_,
                          AppearanceOf(*other.document_, *otherEntity.entity_));
}

std::optional<EntityRef> DocumentReader::InsertionOf(const EntityRef& entity) {
    if (!entity.insertion_) return std::nullopt;
    return EntityRef(*entity.insertion_, entity.block_);
}

std::optional<std::array<double, 4>> DocumentReader::BoxOf(const EntityRef& entity) const {
    const drawcore::Extents box = extents_->Of(*entity.entity_);
    if (box.IsEmpty()) return std::nullopt;
    return std::array<double, 4>{box.low.x, box.low.y, box.high.x, box.high.y};
}

namespace {

// Returns whether a group with that code stores a coordinate, length, angle, count or text rather than the appearance.
bool IsOfShape(int code) {
    constexpr int kLineTypeScale = 48, kColor = 62, kVisibility = 60, kPaperSpace = 67;
    const bool isNumber = (code >= 10 && code < 80) || (code >= 90 && code < 100) || (code >= 210 && code < 240);
    const bool isText = code >= 1 && code <= 3;
    const bool isAppearance = code == kLineTypeScale || code == kColor || code == kVisibility || code == kPaperSpace;
    return (isNumber || isText) && !isAppearance;
}

// Returns the number with up to nine decimal places, beyond which it may differ by rounding.
std::string ComparableNumber(double number) {
    constexpr int kDecimals = 9;
    char text[512]; // more than the longest number has
    const auto [end, error] = std::to_chars(text, text + sizeof text, number, std::chars_format::fixed, kDecimals);
    std::string decimal(text, error == std::errc() ? end : text);
    decimal.erase(decimal.find_last_not_of('0') + 1);
    if (!decimal.empty() && decimal.back() == '.') decimal.pop_back();
    return decimal == "-0" ? "0" : decimal;
}

// Normalizes numbers, which programs write in different ways.
std::string Comparable(const Tag& tag) {
    const std::string_view text = tag.Trimmed();
    const auto number = tag.code >= 10 ? ParseNumber<double>(text) : std::nullopt;
    return std::to_string(tag.code) + " " + (number ? ComparableNumber(*number) : std::string(text));
}

// Calls visit for each group of the entity and its vertices, and returns the offset of the end.
template <class Visit>
size_t VisitRecord(std::string_view text, const Entity& entity, const Visit& visit) {
    TagReader tags(text);
    const Tag* tag = &tags.Seek(entity.offset);
    const bool hasVertices = tag->Is(0, "POLYLINE");
    for (tag = &tags.Next();; tag = &tags.Next()) {
        const bool goesOn = hasVertices && tag->Is(0, "VERTEX");
        if (tag->StartsRecord() && !goesOn) return tag->offset;
        visit(*tag);
    }
}

} // namespace

std::vector<std::string> DocumentReader::ShapeOf(const EntityRef& entity) const {
    std::vector<std::string> shape;
    VisitRecord(Text(), *entity.entity_, [&shape](const Tag& tag) {
        if (IsOfShape(tag.code)) shape.push_back(Comparable(tag));
    });
    return shape;
}

bool DocumentReader::IsStoredLike(const EntityRef& entity, const DocumentReader& other,
                                  const EntityRef& otherEntity) const {
    const size_t begin = entity.entity_->offset, at = otherEntity.entity_->offset;
    const size_t size = VisitRecord(Text(), *entity.entity_, [](const Tag&) {}) - begin;
    return Text().substr(begin, size) == other.Text().substr(at, size) &&
           VisitRecord(other.Text(), *otherEntity.entity_, [](const Tag&) {}) - at == size;
}

} // namespace dxf
