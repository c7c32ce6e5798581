// Exports the appearance of graphics: values that differ from those of the record in the file are replaced, all others
// remain as in the file.
#pragma once

#include <map>

#include "drawcore/src/database/drawing.h"
#include "drawcore/src/export/graphic_comparison.h"
#include "drawcore/src/graphics/graphic.h"
#include "drawcore/src/import/entity_import.h"
#include "drawcore/src/save/drawing_patch.h"

namespace drawcore {

class AppearanceExport {
public:
    // The patch must be for a file with these graphics.
    AppearanceExport(const Drawing& drawing, dxf::DrawingPatch& patch);

    // Changes the record at the offset if the graphic differs from it. Throws SaveError for values that the file cannot
    // contain.
    void Write(const Graphic& graphic, size_t offset);
    // Adds a layer that the file does not contain.
    void AddLayer(Id id);
    // Return the file's entries for those of the drawing. Missing ones are described and added when an entity needs
    // them.
    dxf::LayerIndex LayerOf(Id id);
    dxf::LineTypeIndex LineTypeOf(Id id);

private:
    struct Row;
    static const Row kRows[];

    void SetBrushStyle(const Graphic& graphic, dxf::BrushAppearance& appearance) const;
    void SetPlain(const Graphic& graphic, const PropertyInfo& info, dxf::Appearance& appearance) const;

    const Drawing& drawing_;
    dxf::DrawingPatch& patch_;
    Drawing file_; // with the tables of the file
    const dxf::Document known_;
    const ImportedTables tables_;
    EntityImport import_;
    GraphicComparison comparison_;
    std::map<Id, dxf::LayerIndex> layers_;
    std::map<Id, dxf::LineTypeIndex> lineTypes_;
};

} // namespace drawcore
