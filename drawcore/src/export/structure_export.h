// What has come into a drawing or gone from it since its file was read or written: graphics, and blocks with theirs.
#pragma once

#include <map>
#include <unordered_map>
#include <vector>

#include "drawcore/src/database/drawing.h"
#include "drawcore/src/export/leftovers.h"
#include "drawcore/src/graphics/graphic.h"
#include "drawcore/src/save/structure_patch.h"

namespace drawcore {

class StructureExport {
public:
    // The drawing was read from a file; all have to outlive the export.
    StructureExport(const Drawing& drawing, dxf::StructurePatch& patch, Leftovers& left);

    // Adds what the file can't hold to what is left; what was there before is passed over.
    void Write();
    // Once the patch is finished: where the record of the graphic begins in the changed text.
    uint32_t PlaceOf(const Graphic& graphic) const;
    // Once the patch is finished: what cannot be removed becomes part of what is left.
    void TakeRefusals();
    // Whether a new graphic gets a record.
    bool WillHave(const Graphic& added) const { return added_.count(&added) != 0; }
    // Where the records are, in the changed text, that stay although their graphics were removed.
    std::vector<uint32_t> RemovedLeft() const;
    // Whether the file has the block, or will.
    static bool Has(const Block& block);

private:
    void RemoveBlocks();
    void RemoveLayers();
    void WriteBlock(const Block& block);
    void CheckWhole(const std::string& name, const Graphic& whole);
    void WriteTree(const Block& block, const dxf::Block& known);
    void AddMissing(const Graphic& group, const dxf::Block* block);
    void Keep(const Graphic& graphic);
    void RemoveOthers();
    dxf::Entity EntityOf(const Graphic& graphic);

    const Drawing& drawing_;
    dxf::StructurePatch& patch_;
    Leftovers& left_;
    std::map<std::string, dxf::Block> inFile_; // by the folded names of the drawing
    std::unordered_map<const Graphic*, size_t> added_;
    std::vector<uint32_t> kept_;
    std::vector<std::pair<uint32_t, uint32_t>> removed_; // from and to: of blocks
};

// Return the style tree that the contents of a block belong to, in the drawing's code page.
std::string StyleTreeOf(const Block& block);
std::string StyleTreeOf(const dxf::Block& block);

} // namespace drawcore
