// Comparing the graphics of a drawing with those that its file has.
#include "drawcore/src/export/structure_export.h"

#include <algorithm>
#include <iterator>

#include "drawcore/src/database/dxf_source.h"
#include "drawcore/src/database/encoding.h"
#include "drawcore/src/dxf/look.h"
#include "drawcore/src/export/entity_export.h"
#include "drawcore/src/graphics/insert_graphic.h"
#include "drawcore/src/graphics/vertex_graphic.h"
#include "drawcore/src/import/import_tables.h"
#include "drawcore/src/save/save_error.h"

namespace drawcore {

namespace {

bool IsNew(const Graphic& graphic) {
    return graphic.source == Graphic::kNoSource;
}

} // namespace

StructureExport::StructureExport(const Drawing& drawing, dxf::StructurePatch& patch)
    : drawing_(drawing), patch_(patch) {
    for (const dxf::Block& block : patch.Known().blocks) {
        const std::string name = HostName(block.name);
        const std::vector<std::string>& taken = drawing.source->blocks;
        if (block.declared && std::find(taken.begin(), taken.end(), name) != taken.end())
            inFile_.emplace(
                FoldName(name),
                dxf::Block{block.name, true, block.base, block.flags, {}, block.own, block.begin, block.end});
    }
}

void StructureExport::Write() {
    RemoveBlocks();
    if (const BlockTable* blocks = drawing_.Blocks())
        for (Id id = blocks->First(); id; id = blocks->Next(id))
            if (Has(*blocks->At(id))) WriteBlock(*blocks->At(id));
    AddMissing(drawing_.Root(), nullptr);
    RemoveOthers();
}

// What the library's sheet keeps in a drawing while it is open is not part of it.
bool StructureExport::Has(const Block& block) {
    return block.name != kPreviewBlock;
}

uint32_t StructureExport::PlaceOf(const Graphic& graphic) const {
    const auto added = added_.find(&graphic);
    const size_t place = added != added_.end() ? patch_.PlaceOf(added->second) : patch_.Moved(graphic.source);
    return static_cast<uint32_t>(place);
}

void StructureExport::RemoveBlocks() {
    const BlockTable* blocks = drawing_.Blocks();
    for (const auto& [name, block] : inFile_) {
        if (blocks && blocks->IdOf(HostName(block.name))) continue;
        patch_.RemoveBlock(block);
        removed_.emplace_back(block.begin, block.end);
    }
}

void StructureExport::WriteBlock(const Block& block) {
    try {
        if (!block.Content().HasLook(VertexGraphic().GetLook()))
            throw dxf::SaveError("the file has no place for properties of the block as a whole");
        const auto known = inFile_.find(FoldName(block.name));
        if (known != inFile_.end()) return AddMissing(block.Content(), &known->second);
        dxf::Block made;
        made.name = Utf8FromCodePage(block.name);
        made.base = block.base;
        if (const char* tree = block.Content().pszStyleName)
            made.own.push_back({dxf::kOwnStyleTree, Utf8FromCodePage(tree), {}});
        const size_t count = block.Content().MemberCount();
        for (size_t i = 0; i < count; ++i)
            made.entities.push_back(EntityOf(*block.Content().MemberAt(i)));
        const size_t first = patch_.AddBlock(made);
        for (size_t i = 0; i < count; ++i)
            added_.emplace(block.Content().MemberAt(i), first + i);
    } catch (const dxf::SaveError& error) {
        throw dxf::SaveError("block \"" + block.name + "\": " + error.what());
    }
}

void StructureExport::AddMissing(const Graphic& group, const dxf::Block* block) {
    for (size_t i = 0; i < group.MemberCount(); ++i) {
        const Graphic& graphic = *group.MemberAt(i);
        if (IsNew(graphic))
            added_.emplace(&graphic, patch_.Add(EntityOf(graphic), block));
        else
            Keep(graphic);
    }
}

// A graphic that is in the file with all its members.
void StructureExport::Keep(const Graphic& graphic) {
    if (IsNew(graphic)) throw dxf::SaveError("an attribute was added, which the file can't take");
    kept_.push_back(graphic.source);
    for (size_t i = 0; i < graphic.MemberCount(); ++i)
        Keep(*graphic.MemberAt(i));
}

void StructureExport::RemoveOthers() {
    std::sort(kept_.begin(), kept_.end());
    std::vector<uint32_t> others;
    const std::vector<uint32_t>& all = drawing_.source->graphics;
    std::set_difference(all.begin(), all.end(), kept_.begin(), kept_.end(), std::back_inserter(others));
    for (const uint32_t offset : others) {
        const auto holds = [offset](const auto& range) {
            return range.first < offset && offset < range.second;
        };
        if (std::none_of(removed_.begin(), removed_.end(), holds)) patch_.Remove(offset);
    }
}

dxf::Entity StructureExport::EntityOf(const Graphic& graphic) {
    dxf::Entity entity = drawcore::EntityOf(graphic);
    if (auto* insert = std::get_if<dxf::Apart<dxf::Insert>>(&entity.shape)) {
        const BlockTable* blocks = drawing_.Blocks();
        const Block* shown = blocks ? blocks->At(static_cast<const InsertGraphic&>(graphic).block) : nullptr;
        if (!shown) throw dxf::SaveError("an insertion without a block was added");
        (*insert)->block = patch_.FindBlock(Utf8FromCodePage(shown->name));
    }
    return entity;
}

} // namespace drawcore
