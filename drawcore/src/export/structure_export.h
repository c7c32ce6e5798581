// Exports the graphics and blocks that were added or removed since the file was read or written.
#pragma once

#include <map>
#include <unordered_map>
#include <vector>

#include "drawcore/src/database/drawing.h"
#include "drawcore/src/export/omitted_objects.h"
#include "drawcore/src/graphics/graphic.h"
#include "drawcore/src/save/structure_patch.h"

namespace drawcore {

class StructureExport {
public:
    // The drawing must have been read from a file. All arguments must outlive the export.
    StructureExport(const Drawing& drawing, dxf::StructurePatch& patch, OmittedObjects& omitted);

    // Adds graphics that the file cannot contain to `omitted`, and skips those that are already there.
    void Write();
    // Returns the offset of the graphic's record in the changed text. Valid after the patch is finished.
    uint32_t OffsetOf(const Graphic& graphic) const;
    // Adds objects that cannot be removed to `omitted`. Valid after the patch is finished.
    void ReportBlockingReferences();
    // Returns whether a new graphic gets a record.
    bool IsAdded(const Graphic& added) const { return added_.count(&added) != 0; }
    // Returns the offsets in the changed text of records that are kept although their graphics were removed.
    std::vector<uint32_t> NotRemoved() const;
    // Returns whether the file contains the block, or will.
    static bool Has(const Block& block);

private:
    void RemoveBlocks();
    void RemoveLayers();
    void WriteBlock(const Block& block);
    void CheckGroup(const std::string& name, const Graphic& group);
    void WriteTree(const Block& block, const dxf::Block& known);
    void AddMissing(const Graphic& group, const dxf::Block* block);
    void RetainGraphic(const Graphic& graphic);
    void RemoveOthers();
    dxf::Entity EntityOf(const Graphic& graphic);

    const Drawing& drawing_;
    dxf::StructurePatch& patch_;
    OmittedObjects& omitted_;
    std::map<std::string, dxf::Block> inFile_; // by case-folded name in the drawing
    std::unordered_map<const Graphic*, size_t> added_;
    std::vector<uint32_t> retained_;
    std::vector<std::pair<uint32_t, uint32_t>> removed_; // begin and end of blocks
};

// Returns the style tree of the contents of a block, in the drawing's code page.
std::string StyleTreeOf(const Block& block);
std::string StyleTreeOf(const dxf::Block& block);

} // namespace drawcore
