// Entities and blocks that are added to a drawing's text, or taken out of it. What is added has its shape only; its
// look comes with a DrawingPatch over the result.
//
//   dxf::StructurePatch structure(text, std::move(document));
//   structure.Remove(entity.offset);
//   const size_t added = structure.Add(line, nullptr);
//   const std::string changed = structure.Finish();
//   ... structure.PlaceOf(added), structure.Moved(other.offset)
#pragma once

#include <string>
#include <vector>

#include "drawcore/src/dxf/entity_reader.h"
#include "drawcore/src/save/entity_records.h"
#include "drawcore/src/save/reference_removal.h"

namespace dxf {

class StructurePatch {
public:
    // As those of DrawingPatch.
    StructurePatch(std::string_view text, Document known);

    const Document& Known() const { return in_.document; }
    BlockIndex FindBlock(const std::string& name) { return BlockIndex(in_.blocks.FindUtf8(name)); }

    // The entity whose record begins there, with the records that belong to it. In rising order of the offsets.
    void Remove(size_t offset);
    void RemoveBlock(const Block& block);
    // The layer's record. Entities may still be on it.
    void RemoveLayer(const Layer& layer);
    // In place of the extended data of kApplication that the block has.
    void SetOwn(const Block& block, const OwnData& own);

    // SaveError if the version has no such entity.
    void Check(const Entity& entity) { records_.LinesOf(entity, {}); }
    // Appends the entity to a block of the file, or with null to model space; returns its number, for PlaceOf.
    size_t Add(const Entity& entity, const Block* block);
    // A new block, before any entity that is added: a name, what the program says about it, and entities; returns the
    // number of the first of these, which the others follow.
    size_t AddBlock(const Block& block);

    bool IsChanged() const { return changed_; }
    // The changed text, which counts if there are no refusals; nothing can be changed afterwards.
    std::string Finish();
    // What cannot be removed, by the offsets of the entity or layer, or where the block begins.
    const std::vector<ReferenceRemoval::Refusal>& Refusals() const { return references_.Refusals(); }
    // Where the record of an added entity begins in it, and what began elsewhere before.
    size_t PlaceOf(size_t added) const { return added_[added].place; }
    size_t Moved(size_t offset) const { return patch_.Moved(offset); }

private:
    // Records that come in front of what is there, and where in these an added entity begins.
    struct Piece {
        size_t at;
        std::string lines;
        const char* section; // that it is by itself; null: it is part of one
    };
    struct Added {
        size_t piece, place; // in the piece; after Finish in the text
    };

    void ResetCurrentLayer(const Layer& removed);
    void RemoveText(size_t begin, size_t end, size_t place);
    size_t PieceAt(size_t at, const char* section = nullptr);
    size_t PieceOf(const std::optional<size_t>& sectionEnd, const char* section);
    size_t Append(size_t piece, const Entity& entity, const std::string& owner);

    RecordReader in_;
    EntityReader entities_{in_};
    TextPatch patch_;
    TablePatch tables_;
    EntityRecords records_;
    ReferenceRemoval references_{patch_};
    std::vector<Piece> pieces_;
    std::vector<Added> added_;
    size_t removedEnd_ = 0;
    bool changed_ = false;
};

} // namespace dxf
