// Adds entities and blocks to a drawing's text, or removes them. Added entities only have a shape; their appearance is
// set with a DrawingPatch over the result.
//
//   dxf::StructurePatch structure(text, std::move(document));
//   structure.Remove(entity.offset);
//   const size_t added = structure.Add(line, nullptr);
//   const std::string changed = structure.Finish();
//   ... structure.OffsetOf(added), structure.Moved(other.offset)
#pragma once

#include <string>
#include <vector>

#include "drawcore/src/dxf/entity_reader.h"
#include "drawcore/src/save/entity_records.h"
#include "drawcore/src/save/reference_removal.h"

namespace dxf {

class StructurePatch {
public:
    // Same as DrawingPatch.
    StructurePatch(std::string_view text, Document known);

    const Document& Known() const { return in_.document; }
    BlockIndex FindBlock(const std::string& name) { return BlockIndex(in_.blocks.FindUtf8(name)); }

    // Removes the entity at the offset with the records that belong to it. Offsets must ascend.
    void Remove(size_t offset);
    void RemoveBlock(const Block& block);
    // Removes the layer's record. Entities may still be on it.
    void RemoveLayer(const Layer& layer);
    // Replaces the block's extended data of kApplication.
    void SetExtendedData(const Block& block, const ExtendedData& extended);

    // Throws SaveError if the version has no such entity.
    void Check(const Entity& entity) { records_.LinesOf(entity, {}); }
    // Appends the entity to a block of the file or, with null, to model space. Returns its number for OffsetOf.
    size_t Add(const Entity& entity, const Block* block);
    // Adds a block with its name, extended data and entities, before any entity is added. Returns the number of the
    // first entity; the others follow.
    size_t AddBlock(const Block& block);

    bool IsChanged() const { return changed_; }
    // Returns the changed text, which is valid if there are no blocking references. Nothing can be changed afterward.
    std::string Finish();
    // Returns references that prevent removals, with the offset of the entity, layer or block.
    const std::vector<ReferenceRemoval::BlockingReference>& BlockingReferences() const {
        return references_.BlockingReferences();
    }
    // Returns the offset of an added entity's record in the changed text, or that of existing contents.
    size_t OffsetOf(size_t added) const { return added_[added].offset; }
    size_t Moved(size_t offset) const { return patch_.Moved(offset); }

private:
    // Records added before existing text, and the offset of an added entity in them.
    struct Piece {
        size_t at;
        std::string lines;
        const char* section; // section of the piece; null if it is part of one
    };
    struct Added {
        size_t piece, offset; // in the piece; after Finish, in the text
    };

    void ResetCurrentLayer(const Layer& removed);
    void RemoveText(size_t begin, size_t end, size_t objectOffset);
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
