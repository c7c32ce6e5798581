// Reads and writes drawings, and selects their entities.
#include "tools/dxfprops/drawing_file.h"

#include <algorithm>
#include <cstdio>
#include <iostream>
#include <iterator>

#include "files/file_error.h"
#include "files/file_replacement.h"
#include "files/open_file.h"

namespace dxfprops {

namespace {

std::string BytesOf(const std::string& file) {
    if (file == kStandardStream) return std::string(std::istreambuf_iterator<char>(std::cin), {});
    return dxf::ReadBytes(std::filesystem::u8path(file));
}

void KeepBackup(const std::filesystem::path& file) {
    std::error_code isMissing;
    if (!std::filesystem::exists(file, isMissing)) return;
    std::filesystem::path backup = file;
    backup += ".bak";
    files::FileReplacement replacement(backup, file);
    replacement.Write(dxf::ReadBytes(file));
    replacement.Commit();
}

} // namespace

DrawingFile::DrawingFile(const std::string& file, const std::function<void(int permille)>& progress)
    : DocumentReader(BytesOf(file), progress), path_(file == kStandardStream ? "" : std::filesystem::u8path(file)) {}

void DrawingFile::Write(const std::string& bytes, const std::string& output, bool keepsBackup) const {
    if (output == kStandardStream) {
        if (std::fwrite(bytes.data(), 1, bytes.size(), stdout) != bytes.size() || std::fflush(stdout) != 0)
            files::ThrowLastError("the drawing cannot be written");
        return;
    }
    const std::filesystem::path target = std::filesystem::u8path(output);
    std::error_code isNew;
    const bool isOwn = !path_.empty() && std::filesystem::equivalent(target, path_, isNew);
    if (isOwn && bytes == Bytes()) return;
    try {
        if (keepsBackup) KeepBackup(target);
        files::FileReplacement replacement(target);
        replacement.Write(bytes);
        if (isOwn && !files::HasContents(target, Bytes()))
            throw dxf::SaveError("another program has changed the file in the meantime");
        replacement.Commit();
    } catch (const files::FileError& error) {
        if (isOwn) throw; // the caller adds the name of the drawing
        throw dxf::SaveError(output + ": " + error.what());
    }
}

namespace {

std::vector<std::string> DistinctNames(const std::vector<std::string>& names) {
    std::vector<std::string> distinct;
    for (const std::string& name : names)
        if (std::none_of(distinct.begin(), distinct.end(),
                         [&name](const std::string& other) { return dxf::IsSameName(name, other); }))
            distinct.push_back(name);
    return distinct;
}

// Returns the first condition that compares the name of the block, or null.
const Condition* FindBlockCondition(const Selection& selection, Comparison comparison) {
    for (const Condition& condition : selection.where)
        if (condition.name == kBlock && condition.comparison == comparison) return &condition;
    return nullptr;
}

} // namespace

std::vector<dxf::EntityRef> DrawingFile::Around(const Selection& selection) const {
    std::vector<dxf::EntityRef> found;
    const auto add = [&found](std::vector<dxf::EntityRef> some) {
        if (found.empty()) return found.swap(some); // avoids a second copy in memory
        found.insert(found.end(), some.begin(), some.end());
    };
    constexpr char kBlockIs[] = "block=";
    const Condition* named = selection.space.empty() ? FindBlockCondition(selection, Comparison::equal) : nullptr;
    const bool isLike = selection.space.empty() && !named && FindBlockCondition(selection, Comparison::like);
    const std::string space = isLike ? "all" : selection.space.empty() ? "model" : selection.space;
    if (space.rfind(kBlockIs, 0) == 0) return EntitiesOf(space.substr(sizeof kBlockIs - 1));
    if (named) {
        for (const std::string& block : DistinctNames(named->values))
            add(EntitiesOf(block));
        return found;
    }
    if (space != "model") add(PaperEntities());
    if (space == "all") add(Entities());
    if (space == "model") add(EntitiesOf(""));
    return found;
}

std::set<std::string> DrawingFile::KindsAround(const Selection& selection) const {
    std::set<std::string> kinds;
    for (const dxf::EntityRef& entity : Around(selection))
        kinds.insert(NameOf(entity).kind);
    return kinds;
}

bool Selector::IsSelected(const dxf::EntityRef& entity) {
    if (selection_.within) {
        const auto box = drawing_.BoxOf(entity);
        const auto& within = *selection_.within;
        if (!box || (*box)[0] < within[0] || (*box)[1] < within[1] || (*box)[2] > within[2] || (*box)[3] > within[3])
            return false;
    }
    return test_.Meets(entity);
}

} // namespace dxfprops
