// Choosing entities.
#include "tools/dxfprops/drawing_file.h"

#include <filesystem>

#include "drawcore/src/dxf/reader.h"
#include "drawcore/src/tables/fold_name.h"

namespace dxfprops {

using drawcore::FoldName;

std::string EntityName::Text() const {
    return kind + (handle.empty() ? "" : " " + handle) + " (line " + std::to_string(line) + ")";
}

DrawingFile::DrawingFile(const std::string& file)
    : bytes_(dxf::ReadBytes(std::filesystem::u8path(file))), document_(dxf::Read(bytes_, {})),
      texts_(document_) {}

std::string_view DrawingFile::Text() const {
    return dxf::TextOf(bytes_);
}

EntityName DrawingFile::NameOf(const dxf::Entity& entity) const {
    constexpr int kHandle = 5;
    const dxf::Progress silent;
    dxf::TagReader tags(Text(), silent);
    const dxf::Tag& tag = tags.Seek(entity.offset);
    EntityName name{std::string(tag.Trimmed()), {}, entity.line};
    while (!tags.Next().StartsRecord() && tag.code != dxf::kSubclass)
        if (tag.code == kHandle) name.handle = tag.Trimmed();
    return name;
}

bool DrawingFile::Meets(const dxf::Entity& entity, const std::vector<Condition>& where) const {
    const auto value = [&](const std::string& name) {
        if (name == "kind") return NameOf(entity).kind;
        if (name == "handle") return NameOf(entity).handle;
        return texts_.Get(name, LookOf(entity));
    };
    for (const Condition& condition : where) {
        const bool isProperty = PropertyTexts::NameOf(condition.name).has_value();
        if (isProperty && !PropertyTexts::Has(entity, condition.name)) return false;
        if (FoldName(value(condition.name)) != FoldName(condition.value)) return false;
    }
    return true;
}

std::vector<const dxf::Entity*> DrawingFile::Select(const std::vector<Condition>& where) const {
    std::vector<const dxf::Entity*> selected;
    const auto offer = [&](const dxf::Entity& entity) {
        if (PropertyTexts::Has(entity, kPropLayer) && Meets(entity, where)) selected.push_back(&entity);
    };
    for (const dxf::Entity& entity : document_.entities) {
        if (entity.inPaperSpace) continue;
        offer(entity);
        if (const auto* insert = std::get_if<dxf::Apart<dxf::Insert>>(&entity.shape))
            for (const dxf::Entity& attribute : (*insert)->attributes)
                offer(attribute);
    }
    return selected;
}

} // namespace dxfprops
