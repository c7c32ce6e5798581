// What graphics want of their records, in the terms of the file that their drawing was read from: where a graphic
// differs from what its record shows, the graphic's value; everything else as it is in the file.
#pragma once

#include <map>
#include <vector>

#include "drawcore/src/database/drawing.h"
#include "drawcore/src/export/graphic_comparison.h"
#include "drawcore/src/graphics/graphic.h"
#include "drawcore/src/import/entity_import.h"
#include "drawcore/src/save/drawing_patch.h"

namespace drawcore {

class LookExport {
public:
    // The patch is one of a file with these graphics.
    LookExport(const Drawing& drawing, dxf::DrawingPatch& patch);

    // Changes the record that begins there, if the graphic differs from it. SaveError names what the file cannot hold.
    void Write(const Graphic& graphic, size_t place);
    // Adds a layer that the file does not have.
    void AddLayer(Id id);
    // The file's entries for those of the drawing; missing ones are described, for the first entity that needs them.
    dxf::LayerIndex LayerOf(Id id);
    dxf::LineTypeIndex LineTypeOf(Id id);

private:
    struct Row;
    static const Row kRows[];

    void SetBrushStyle(const Graphic& graphic, dxf::BrushLook& look) const;
    void SetPlain(const Graphic& graphic, const PropertyInfo& info, dxf::Look& look) const;

    const Drawing& drawing_;
    dxf::DrawingPatch& patch_;
    Drawing file_; // the tables of the file
    const dxf::Document known_;
    const ImportedTables tables_;
    EntityImport import_;
    GraphicComparison comparison_;
    std::map<Id, dxf::LayerIndex> layers_;
    std::map<Id, dxf::LineTypeIndex> lineTypes_;
};

} // namespace drawcore
