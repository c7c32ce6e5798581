// What has come into a drawing or gone from it since its file was read or written: graphics, and blocks with theirs.
#pragma once

#include <map>
#include <unordered_map>
#include <vector>

#include "drawcore/src/database/drawing.h"
#include "drawcore/src/graphics/graphic.h"
#include "drawcore/src/save/structure_patch.h"

namespace drawcore {

class StructureExport {
public:
    // The drawing was read from a file; both have to outlive the export.
    StructureExport(const Drawing& drawing, dxf::StructurePatch& patch);

    // SaveError if the file can't hold one of them.
    void Write();
    // Once the patch is finished: where the record of the graphic begins in the changed text.
    uint32_t PlaceOf(const Graphic& graphic) const;
    // Whether the file has the block, or will.
    static bool Has(const Block& block);

private:
    void RemoveBlocks();
    void WriteBlock(const Block& block);
    void AddMissing(const Graphic& group, const dxf::Block* block);
    void Keep(const Graphic& graphic);
    void RemoveOthers();
    dxf::Entity EntityOf(const Graphic& graphic);

    const Drawing& drawing_;
    dxf::StructurePatch& patch_;
    std::map<std::string, dxf::Block> inFile_; // by the folded names of the drawing
    std::unordered_map<const Graphic*, size_t> added_;
    std::vector<uint32_t> kept_;
    std::vector<std::pair<uint32_t, uint32_t>> removed_; // from and to: of blocks
};

} // namespace drawcore
