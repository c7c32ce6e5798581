// A drawing: its tables, its graphics, its undo log, and the file that it was read from (see dxf/ and export/).
#pragma once

#include <map>

#include "drawcore/src/styles/block.h"
#include "drawcore/src/styles/brush_style.h"
#include "drawcore/src/styles/colors.h"
#include "drawcore/src/styles/layer.h"
#include "drawcore/src/styles/line_style.h"
#include "orlo/host/records.h"

namespace drawcore {

struct DxfSource;
class UndoLog;
class VertexGraphic;

class Drawing : public DrawingStruct {
public:
    Drawing();
    ~Drawing();
    Drawing(const Drawing&) = delete;
    Drawing& operator=(const Drawing&) = delete;

    // The drawing behind a pointer from outside; null for null and for a drawing that has been freed.
    static Drawing* Find(DrawingStruct* drawing);

    // Any of its tables by name; null if there isn't one.
    Table* FindTable(std::string_view name) const;
    Table* AddTable(std::string_view name, std::unique_ptr<Table> table); // null if the name is taken
    bool RemoveTable(Table* table);

    // The tables that every drawing has from the start; null once the host program has removed one.
    LayerTable* Layers() const { return dynamic_cast<LayerTable*>(FindTable(kTableLayers)); }
    LineStyleTable* LineStyles() const { return dynamic_cast<LineStyleTable*>(FindTable(kTableLineStyles)); }
    BrushStyleTable* BrushStyles() const { return dynamic_cast<BrushStyleTable*>(FindTable(kTableBrushStyles)); }
    ColorTable* Colors() const { return dynamic_cast<ColorTable*>(FindTable(kTableColors)); }
    BlockTable* Blocks() const { return dynamic_cast<BlockTable*>(FindTable(kTableBlocks)); }
    Table* Units() const { return FindTable(kTableUnits); }

    VertexGraphic& Root() const { return *root_; } // the group of all its graphics
    UndoLog& Undo() const { return *undo_; }

    std::string scaleText = "1 : 1"; // of the drawing on paper
    uint16_t coordSpace = kSpaceWorld;
    std::unique_ptr<DxfSource> source; // null: the drawing was not read from a file
    double lineScale = 1;              // DXF's $LTSCALE: scales the dash patterns of the drawing's own graphics

private:
    std::map<std::string, std::unique_ptr<Table>, std::less<>> tables_;
    std::unique_ptr<UndoLog> undo_;
    std::unique_ptr<VertexGraphic> root_;
};

} // namespace drawcore
