// Compares the graphics of a drawing with those in its file.
#include "drawcore/src/export/structure_export.h"

#include <algorithm>
#include <iterator>

#include "drawcore/include/drawcore/dxf_document.h"
#include "drawcore/src/database/dxf_source.h"
#include "drawcore/src/database/encoding.h"
#include "drawcore/src/dxf/appearance.h"
#include "drawcore/src/export/entity_export.h"
#include "drawcore/src/graphics/insert_graphic.h"
#include "drawcore/src/graphics/vertex_graphic.h"
#include "drawcore/src/import/import_tables.h"

namespace drawcore {

namespace {

bool IsNew(const Graphic& graphic) {
    return graphic.source == Graphic::kNoSource;
}

} // namespace

StructureExport::StructureExport(const Drawing& drawing, dxf::StructurePatch& patch, OmittedObjects& omitted)
    : drawing_(drawing), patch_(patch), omitted_(omitted) {
    for (const dxf::Block& block : patch.Known().blocks) {
        const std::string name = HostName(block.name);
        const std::vector<std::string>& fileBlocks = drawing.source->blocks;
        if (block.declared && std::find(fileBlocks.begin(), fileBlocks.end(), name) != fileBlocks.end())
            inFile_.emplace(dxf::FoldName(name), dxf::Block{block.name,
                                                            block.stored,
                                                            true,
                                                            block.base,
                                                            block.flags,
                                                            {},
                                                            block.extended,
                                                            block.begin,
                                                            block.end});
    }
}

void StructureExport::Write() {
    CheckGroup("the drawing", drawing_.Root());
    RemoveLayers();
    RemoveBlocks();
    if (const BlockTable* blocks = drawing_.Blocks())
        for (Id id = blocks->First(); id; id = blocks->Next(id))
            if (Has(*blocks->At(id))) WriteBlock(*blocks->At(id));
    AddMissing(drawing_.Root(), nullptr);
    RemoveOthers();
}

// The temporary block of an open sheet is not part of the drawing.
bool StructureExport::Has(const Block& block) {
    return block.name != kPreviewBlock;
}

uint32_t StructureExport::OffsetOf(const Graphic& graphic) const {
    const auto added = added_.find(&graphic);
    const size_t offset = added != added_.end() ? patch_.OffsetOf(added->second) : patch_.Moved(graphic.source);
    return static_cast<uint32_t>(offset);
}

void StructureExport::RemoveBlocks() {
    const BlockTable* blocks = drawing_.Blocks();
    for (const auto& [folded, block] : inFile_) {
        const std::string name = HostName(block.name);
        if (blocks && blocks->IdOf(name)) continue;
        if (omitted_.Has(OmittedObjects::NameOfBlock(name))) continue;
        patch_.RemoveBlock(block);
        removed_.emplace_back(block.begin, block.end);
    }
}

void StructureExport::WriteBlock(const Block& block) {
    CheckGroup(OmittedObjects::NameOfBlock(block.name), block.Content());
    const auto known = inFile_.find(dxf::FoldName(block.name));
    if (known != inFile_.end()) {
        WriteTree(block, known->second);
        return AddMissing(block.Content(), &known->second);
    }
    dxf::Block fileBlock;
    fileBlock.name = Utf8FromCodePage(block.name);
    fileBlock.base = block.base;
    if (const std::string tree = StyleTreeOf(block); !tree.empty())
        fileBlock.extended.push_back({dxf::kExtendedStyleTree, Utf8FromCodePage(tree), {}});
    std::vector<const Graphic*> parts;
    for (size_t i = 0; i < block.Content().MemberCount(); ++i) {
        const Graphic& part = *block.Content().MemberAt(i);
        if (omitted_.Has(part)) continue;
        omitted_.RunOrOmit(part, [&] {
            patch_.Check(fileBlock.entities.emplace_back(EntityOf(part)));
            parts.push_back(&part);
        });
    }
    if (parts.size() != fileBlock.entities.size()) return; // will be repeated without the others
    const size_t first = patch_.AddBlock(fileBlock);
    for (size_t i = 0; i < parts.size(); ++i)
        added_.emplace(parts[i], first + i);
}

// A group of graphics has properties that no record of a file can store.
void StructureExport::CheckGroup(const std::string& name, const Graphic& group) {
    if (!group.HasAppearance(VertexGraphic().GetAppearance()))
        omitted_.Add(name, "the file format cannot store properties of a group");
}

void StructureExport::WriteTree(const Block& block, const dxf::Block& known) {
    const std::string tree = StyleTreeOf(block);
    if (tree == StyleTreeOf(known)) return;
    dxf::ExtendedData extended = known.extended;
    extended.erase(
        std::remove_if(extended.begin(), extended.end(),
                       [](const dxf::ExtendedValue& value) { return value.name == dxf::kExtendedStyleTree; }),
        extended.end());
    if (!tree.empty()) extended.push_back({dxf::kExtendedStyleTree, Utf8FromCodePage(tree), {}});
    patch_.SetExtendedData(known, extended);
}

// Only layers that existed when the drawing was read or saved.
void StructureExport::RemoveLayers() {
    const LayerTable* layers = drawing_.Layers();
    for (const dxf::Layer& layer : patch_.Known().layers) {
        const std::string name = HostName(layer.name);
        const std::vector<std::string>& known = drawing_.source->layers;
        const bool isRemoved =
            layers && !layers->IdOf(name) && std::find(known.begin(), known.end(), name) != known.end();
        if (!isRemoved || !layer.declared || omitted_.Has(OmittedObjects::NameOfLayer(name))) continue;
        patch_.RemoveLayer(layer);
    }
}

void StructureExport::AddMissing(const Graphic& group, const dxf::Block* block) {
    for (size_t i = 0; i < group.MemberCount(); ++i) {
        const Graphic& graphic = *group.MemberAt(i);
        if (!IsNew(graphic))
            RetainGraphic(graphic);
        else if (!omitted_.Has(graphic))
            omitted_.RunOrOmit(graphic, [&] { added_.emplace(&graphic, patch_.Add(EntityOf(graphic), block)); });
    }
}

// Retains a graphic that is in the file, with all its members.
void StructureExport::RetainGraphic(const Graphic& graphic) {
    if (IsNew(graphic)) return omitted_.Add(graphic, "added attributes cannot be saved");
    retained_.push_back(graphic.source);
    for (size_t i = 0; i < graphic.MemberCount(); ++i)
        RetainGraphic(*graphic.MemberAt(i));
}

void StructureExport::RemoveOthers() {
    std::sort(retained_.begin(), retained_.end());
    std::vector<uint32_t> others;
    const std::vector<uint32_t>& all = drawing_.source->graphics;
    std::set_difference(all.begin(), all.end(), retained_.begin(), retained_.end(), std::back_inserter(others));
    for (const uint32_t offset : others) {
        const auto contains = [offset](const auto& range) { return range.first < offset && offset < range.second; };
        if (omitted_.Removed().count(offset) == 0 && std::none_of(removed_.begin(), removed_.end(), contains))
            patch_.Remove(offset);
    }
}

void StructureExport::ReportBlockingReferences() {
    for (const dxf::ReferenceRemoval::BlockingReference& blocking : patch_.BlockingReferences()) {
        const auto offset = static_cast<uint32_t>(blocking.objectOffset);
        std::string what;
        for (const auto& [folded, block] : inFile_)
            if (block.begin == offset) what = OmittedObjects::NameOfBlock(HostName(block.name));
        for (const dxf::Layer& layer : drawing_.source->known.layers)
            if (layer.declared && layer.offset == offset) what = OmittedObjects::NameOfLayer(HostName(layer.name));
        what.empty() ? omitted_.AddRemoved(offset, blocking.reason) : omitted_.Add(what, blocking.reason);
    }
}

std::vector<uint32_t> StructureExport::NotRemoved() const {
    std::vector<uint32_t> offsets;
    for (const uint32_t offset : omitted_.Removed())
        offsets.push_back(static_cast<uint32_t>(patch_.Moved(offset)));
    return offsets;
}

std::string StyleTreeOf(const Block& block) {
    const char* tree = block.Content().pszStyleName;
    return tree ? tree : "";
}

std::string StyleTreeOf(const dxf::Block& block) {
    for (const dxf::ExtendedValue& extended : block.extended)
        if (extended.name == dxf::kExtendedStyleTree) return CodePageFromUtf8(extended.text);
    return {};
}

dxf::Entity StructureExport::EntityOf(const Graphic& graphic) {
    dxf::Entity entity = drawcore::EntityOf(graphic);
    if (auto* insert = std::get_if<dxf::Boxed<dxf::Insert>>(&entity.shape)) {
        const BlockTable* blocks = drawing_.Blocks();
        const Block* shown = blocks ? blocks->At(static_cast<const InsertGraphic&>(graphic).block) : nullptr;
        if (!shown) throw dxf::SaveError("an added insertion has no block");
        (*insert)->block = patch_.FindBlock(Utf8FromCodePage(shown->name));
    }
    return entity;
}

} // namespace drawcore
