// Reads the contents of a document and the properties of its entities.
#include <algorithm>

#include "drawcore/src/document/contents.h"
#include "drawcore/src/document/property_texts.h"
#include "drawcore/src/dxf/extents.h"
#include "drawcore/src/dxf/reader.h"
#include "drawcore/src/dxf/record_name.h"
#include "drawcore/src/dxf/text_decoding.h"

namespace dxf {

Contents ContentsOf(const Document& document) {
    Contents contents;
    contents.version = document.header.version;
    contents.entityCounts = document.entityCounts;
    for (const Block& block : document.blocks)
        contents.blocks += block.declared;
    for (const Layer& layer : document.layers)
        if (layer.declared)
            contents.layers.push_back({layer.name, layer.color, layer.flags, layer.lineType, layer.trueColor});
    for (const LineType& type : document.lineTypes)
        if (type.declared) contents.lineTypes.push_back({type.name, type.patternLength, type.dashes});
    const drawcore::Extents box = ExtentsOf(document);
    if (!box.IsEmpty()) contents.box = {box.low.x, box.low.y, box.high.x, box.high.y};
    contents.findings = document.findings;
    return contents;
}

DocumentReader::DocumentReader(std::string bytes)
    : bytes_(std::move(bytes)), document_(std::make_unique<const Document>(Read(bytes_, {}))),
      texts_(std::make_unique<const PropertyTexts>(*document_)) {}

DocumentReader::~DocumentReader() = default;

std::string_view DocumentReader::Text() const {
    return TextOf(bytes_);
}

Contents DocumentReader::GetContents() const {
    return ContentsOf(*document_);
}

void DocumentReader::AddEntities(const Block* block, std::vector<EntityRef>& to) const {
    const auto add = [&](const Entity& entity) {
        if (PropertyTexts::Has(entity, kPropLayer)) to.push_back({entity, block});
    };
    for (const Entity& entity : block ? block->entities : document_->entities) {
        if (!block && entity.inPaperSpace) continue;
        add(entity);
        if (const auto* insert = std::get_if<Apart<Insert>>(&entity.shape))
            for (const Entity& attribute : (*insert)->attributes)
                add(attribute);
    }
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
    throw SaveError(names.empty() ? "block: the drawing has none" : "block: '" + name + "' is none of " + names);
}

RecordName DocumentReader::NameOf(const EntityRef& entity) const {
    RecordName name = NameOfRecord(Text(), entity.entity_->offset);
    name.line = entity.entity_->line;
    if (entity.block_) name.block = ToDisplayText(entity.block_->name);
    return name;
}

std::vector<std::string> DocumentReader::PropertyNames() {
    std::vector<std::string> names;
    for (const PropertyInfo& info : kPropertyList)
        names.push_back(info.name);
    const auto place = [](const std::string& name) {
        const PropertyInfo& info = *FindPropertyInfo(name);
        return std::make_pair(info.part, info.meaning != PropertyMeaning::ScaleSystem); // sorted before the width
    };
    std::stable_sort(names.begin(), names.end(),
                     [&](const std::string& a, const std::string& b) { return place(a) < place(b); });
    return names;
}

std::optional<std::string> DocumentReader::FindPropertyName(std::string_view name) {
    for (const PropertyInfo& info : kPropertyList)
        if (IsSameName(info.name, name)) return info.name;
    return std::nullopt;
}

bool DocumentReader::Has(const EntityRef& entity, std::string_view name) {
    return PropertyTexts::Has(*entity.entity_, name);
}

std::string DocumentReader::Get(const EntityRef& entity, std::string_view name) const {
    return texts_->Get(name, AppearanceOf(*document_, *entity.entity_));
}

std::string DocumentReader::GetWithVariety(const EntityRef& entity, std::string_view name) const {
    const bool varies = AppearanceOf(*document_, *entity.entity_).varied & VariedBit(name);
    return Get(entity, name) + (varies ? " (varies)" : "");
}

bool DocumentReader::IsLike(const EntityRef& entity, const DocumentReader& other, const EntityRef& otherEntity) const {
    return SameAppearance(*document_, AppearanceOf(*document_, *entity.entity_), *other.document_,
                          AppearanceOf(*other.document_, *otherEntity.entity_));
}

} // namespace dxf
