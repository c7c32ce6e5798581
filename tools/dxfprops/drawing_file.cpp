// Selects entities of a drawing.
#include "tools/dxfprops/drawing_file.h"

#include <algorithm>
#include <cstdio>

#include "files/file_error.h"
#include "files/file_replacement.h"
#include "files/open_file.h"

namespace dxfprops {

DrawingFile::DrawingFile(const std::string& file)
    : DocumentReader(dxf::ReadBytes(std::filesystem::u8path(file))), path_(std::filesystem::u8path(file)) {}

void DrawingFile::Write(const std::string& bytes, const std::string& output) const {
    if (output == kStandardOutput) {
        if (std::fwrite(bytes.data(), 1, bytes.size(), stdout) != bytes.size() || std::fflush(stdout) != 0)
            files::ThrowLastError("the drawing cannot be written");
        return;
    }
    const std::filesystem::path target = std::filesystem::u8path(output);
    std::error_code isNew;
    const bool isOwn = std::filesystem::equivalent(target, path_, isNew);
    if (isOwn && bytes == Bytes()) return;
    files::FileReplacement replacement(target);
    replacement.Write(bytes);
    if (isOwn && !files::HasContents(target, Bytes()))
        throw dxf::SaveError("the file was changed while this program worked on it");
    replacement.TakePlace();
}

bool DrawingFile::Meets(const dxf::EntityRef& entity, const std::vector<Condition>& where) const {
    const auto value = [&](const std::string& name) {
        if (name == kKind) return NameOf(entity).kind;
        if (name == kHandle) return NameOf(entity).handle;
        if (name == kBlock) return NameOf(entity).block;
        return Get(entity, name);
    };
    for (const Condition& condition : where) {
        const bool isProperty = FindPropertyName(condition.name).has_value();
        if (isProperty && !Has(entity, condition.name)) return false;
        if (!dxf::IsSameName(value(condition.name), condition.value)) return false;
    }
    return true;
}

std::vector<dxf::EntityRef> DrawingFile::Around(const std::vector<Condition>& where) const {
    const auto named =
        std::find_if(where.begin(), where.end(), [](const Condition& some) { return some.name == kBlock; });
    return EntitiesOf(named == where.end() ? "" : named->value);
}

std::vector<dxf::EntityRef> DrawingFile::Select(const std::vector<Condition>& where) const {
    std::vector<dxf::EntityRef> selected = Around(where);
    const auto fails = [&](const dxf::EntityRef& entity) { return !Meets(entity, where); };
    selected.erase(std::remove_if(selected.begin(), selected.end(), fails), selected.end());
    return selected;
}

std::set<std::string> DrawingFile::KindsAround(const std::vector<Condition>& where) const {
    std::set<std::string> kinds;
    for (const dxf::EntityRef& entity : Around(where))
        kinds.insert(NameOf(entity).kind);
    return kinds;
}

} // namespace dxfprops
