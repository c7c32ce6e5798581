// Selects entities of a drawing.
#include "tools/dxfprops/drawing_file.h"

#include <algorithm>
#include <cstdio>

#include "drawcore/src/dxf/fold_name.h"
#include "drawcore/src/dxf/reader.h"
#include "drawcore/src/dxf/text_decoding.h"
#include "drawcore/src/save/save_error.h"
#include "files/file_error.h"
#include "files/file_replacement.h"
#include "files/open_file.h"

namespace dxfprops {

using dxf::FoldName;

DrawingFile::DrawingFile(const std::string& file)
    : path_(std::filesystem::u8path(file)), bytes_(dxf::ReadBytes(path_)), document_(dxf::Read(bytes_, {})),
      texts_(document_) {}

void DrawingFile::Write(const std::string& bytes, const std::string& output) const {
    if (output == kStandardOutput) {
        if (std::fwrite(bytes.data(), 1, bytes.size(), stdout) != bytes.size() || std::fflush(stdout) != 0)
            files::ThrowLastError("the drawing cannot be written");
        return;
    }
    const std::filesystem::path target = std::filesystem::u8path(output);
    std::error_code isNew;
    const bool isOwn = std::filesystem::equivalent(target, path_, isNew);
    if (isOwn && bytes == bytes_) return;
    files::FileReplacement replacement(target);
    replacement.Write(bytes);
    if (isOwn && !files::HasContents(target, bytes_))
        throw dxf::SaveError("the file was changed while this program worked on it");
    replacement.TakePlace();
}

std::string_view DrawingFile::Text() const {
    return dxf::TextOf(bytes_);
}

dxf::RecordName DrawingFile::NameOf(const Found& found) const {
    dxf::RecordName name = dxf::NameOfRecord(Text(), found.entity->offset);
    name.line = found.entity->line;
    if (found.block) name.block = dxf::ToDisplayText(found.block->name);
    return name;
}

bool DrawingFile::Meets(const Found& found, const std::vector<Condition>& where) const {
    const auto value = [&](const std::string& name) {
        if (name == kKind) return NameOf(found).kind;
        if (name == kHandle) return NameOf(found).handle;
        if (name == kBlock) return NameOf(found).block;
        return texts_.Get(name, LookOf(*found.entity));
    };
    for (const Condition& condition : where) {
        const bool isProperty = PropertyTexts::NameOf(condition.name).has_value();
        if (isProperty && !PropertyTexts::Has(*found.entity, condition.name)) return false;
        if (FoldName(value(condition.name)) != FoldName(condition.value)) return false;
    }
    return true;
}

std::vector<Found> AllOf(const dxf::Document& document) {
    std::vector<Found> all;
    const auto offer = [&](const dxf::Entity& entity, const dxf::Block* block) {
        if (PropertyTexts::Has(entity, kPropLayer)) all.push_back({&entity, block});
    };
    const auto offerAll = [&](const std::vector<dxf::Entity>& entities, const dxf::Block* block) {
        for (const dxf::Entity& entity : entities) {
            if (!block && entity.inPaperSpace) continue;
            offer(entity, block);
            if (const auto* insert = std::get_if<dxf::Apart<dxf::Insert>>(&entity.shape))
                for (const dxf::Entity& attribute : (*insert)->attributes)
                    offer(attribute, block);
        }
    };
    offerAll(document.entities, nullptr);
    for (const dxf::Block& block : document.blocks)
        offerAll(block.entities, &block);
    return all;
}

std::vector<Found> DrawingFile::Around(const std::vector<Condition>& where) const {
    const auto named =
        std::find_if(where.begin(), where.end(), [](const Condition& some) { return some.name == kBlock; });
    const dxf::Block* wanted = nullptr;
    std::string names;
    for (const dxf::Block& block : document_.blocks) {
        const std::string name = dxf::ToDisplayText(block.name);
        if (named != where.end() && FoldName(name) == FoldName(named->value)) wanted = &block;
        names += (names.empty() ? "" : ", ") + name;
    }
    if (named != where.end() && !wanted)
        throw dxf::SaveError(names.empty() ? "block: the drawing has none"
                                           : "block: '" + named->value + "' is none of " + names);
    std::vector<Found> around;
    for (const Found& found : All())
        if (found.block == wanted) around.push_back(found);
    return around;
}

std::vector<Found> DrawingFile::Select(const std::vector<Condition>& where) const {
    std::vector<Found> selected = Around(where);
    const auto fails = [&](const Found& found) { return !Meets(found, where); };
    selected.erase(std::remove_if(selected.begin(), selected.end(), fails), selected.end());
    return selected;
}

std::set<std::string> DrawingFile::KindsAround(const std::vector<Condition>& where) const {
    std::set<std::string> kinds;
    for (const Found& found : Around(where))
        kinds.insert(NameOf(found).kind);
    return kinds;
}

} // namespace dxfprops
