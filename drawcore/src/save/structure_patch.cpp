// Adds and removes records.
#include "drawcore/src/save/structure_patch.h"

#include <algorithm>

namespace dxf {

namespace {

constexpr char kModelSpace[] = "*Model_Space";
constexpr char kBlocks[] = "BLOCKS", kEntities[] = "ENTITIES";

} // namespace

StructurePatch::StructurePatch(std::string_view text, Document known)
    : in_(text, std::move(known)), patch_(text), tables_(patch_, in_.decoder, in_.document.header.version),
      records_(tables_, in_.document) {}

void StructurePatch::Remove(size_t offset) {
    if (offset < removedEnd_) return; // it belongs to a removed record
    in_.tags.Seek(offset);
    if (in_.tags.Current().Is(0, "ATTRIB")) {
        in_.tags.SkipRecord();
    } else {
        std::vector<Entity> read;
        entities_.Read(read);
    }
    removedEnd_ = in_.tags.Current().offset;
    RemoveText(offset, removedEnd_, offset);
}

void StructurePatch::RemoveText(size_t begin, size_t end, size_t objectOffset) {
    patch_.Replace(begin, end - begin, {});
    references_.Add(begin, end, objectOffset);
    changed_ = true;
}

void StructurePatch::RemoveBlock(const Block& block) {
    in_.tags.Seek(block.end);
    RemoveText(block.begin, in_.tags.SkipRecord().offset, block.begin);
    if (const auto record = tables_.FindBlockRecord(block.name)) RemoveText(record->first, record->second, block.begin);
}

void StructurePatch::RemoveLayer(const Layer& layer) {
    in_.tags.Seek(layer.offset);
    RemoveText(layer.offset, in_.tags.SkipRecord().offset, layer.offset);
    ResetCurrentLayer(layer);
}

// Other programs add new entities on the current layer.
void StructurePatch::ResetCurrentLayer(const Layer& removed) {
    constexpr int kVariable = 9;
    const Tag& tag = in_.tags.Seek(0);
    while (!tag.Is(kVariable, "$CLAYER")) {
        if (tag.Is(0, "ENDSEC") || tag.Is(0, "EOF")) return;
        in_.tags.Next();
    }
    const std::string_view name = in_.tags.Next().value;
    if (in_.document.layers[in_.layers.Find(name)].offset == removed.offset) patch_.Replace(name, "0");
}

void StructurePatch::SetExtendedData(const Block& block, const ExtendedData& extended) {
    if (!extended.empty()) tables_.AddApplication(kApplication);
    RecordPatch record(patch_, in_.tags, block.begin);
    record.SetExtended(kApplication, ExtendedValues(extended, in_.decoder));
    changed_ = true;
}

size_t StructurePatch::PieceAt(size_t at, const char* section) {
    const auto known = std::find_if(pieces_.begin(), pieces_.end(),
                                    [&](const Piece& piece) { return piece.at == at && piece.section == section; });
    if (known != pieces_.end()) return static_cast<size_t>(known - pieces_.begin());
    pieces_.push_back({at, section ? tables_.LinesOf({{0, "SECTION"}, {2, section}}) : "", section});
    return pieces_.size() - 1;
}

size_t StructurePatch::PieceOf(const std::optional<size_t>& sectionEnd, const char* section) {
    if (sectionEnd) return PieceAt(*sectionEnd);
    const TablePatch::Sections& sections = tables_.FindSections();
    return PieceAt(sections.entities.value_or(sections.fileEnd), section);
}

size_t StructurePatch::Append(size_t piece, const Entity& entity, const std::string& owner) {
    added_.push_back({piece, pieces_[piece].lines.size()});
    pieces_[piece].lines += records_.LinesOf(entity, owner);
    changed_ = true;
    return added_.size() - 1;
}

size_t StructurePatch::Add(const Entity& entity, const Block* block) {
    const std::string owner = tables_.BlockRecord(block ? block->name : kModelSpace);
    if (block) return Append(PieceAt(block->end), entity, owner);
    return Append(PieceOf(tables_.FindSections().entitiesEnd, kEntities), entity, owner);
}

size_t StructurePatch::AddBlock(const Block& block) {
    const size_t piece = PieceOf(tables_.FindSections().blocksEnd, kBlocks);
    const std::string owner = tables_.AddBlockRecord(block.name);
    pieces_[piece].lines += records_.BlockLines(block, owner);
    const size_t first = added_.size();
    for (const Entity& entity : block.entities)
        Append(piece, entity, owner);
    pieces_[piece].lines += records_.BlockEndLines(owner);
    changed_ = true;
    return first;
}

std::string StructurePatch::Finish() {
    references_.Run();
    tables_.Finish(); // tables precede everything at the same offset
    // Offsets from the beginning of a piece at which the text continues.
    std::vector<size_t> offsetInPiece(pieces_.size());
    for (size_t i = 0; i < pieces_.size(); ++i) {
        Piece& piece = pieces_[i];
        if (piece.section) piece.lines += tables_.LinesOf({{0, "ENDSEC"}});
        for (size_t before = 0; before <= i; ++before)
            if (pieces_[before].at == piece.at) offsetInPiece[before] += piece.lines.size();
        patch_.Insert(piece.at, piece.lines);
    }
    std::string changed = patch_.Result();
    for (Added& added : added_)
        added.offset += patch_.Moved(pieces_[added.piece].at) - offsetInPiece[added.piece];
    return changed;
}

} // namespace dxf
