// The contents of a drawing: tables, graphics, and undo log. Graphics access their drawing only through this class.
#pragma once

#include <map>

#include "drawcore/src/graphics/block.h"
#include "drawcore/src/styles/brush_style.h"
#include "drawcore/src/styles/colors.h"
#include "drawcore/src/styles/layer.h"
#include "drawcore/src/styles/line_style.h"
#include "orlo/host/records.h"

namespace drawcore {

class UndoLog;
class VertexGraphic;

class DrawingContents : public DrawingStruct {
public:
    DrawingContents();
    ~DrawingContents();
    DrawingContents(const DrawingContents&) = delete;
    DrawingContents& operator=(const DrawingContents&) = delete;

    // Returns the drawing for a caller's pointer, or null if it is null or the drawing has been freed.
    static DrawingContents* Find(DrawingStruct* drawing);

    // Returns the table with that name, or null.
    Table* FindTable(std::string_view name) const;
    // Returns null if the name already exists.
    Table* AddTable(std::string_view name, std::unique_ptr<Table> table);
    bool RemoveTable(Table* table);

    // Return the tables of every new drawing, or null if the host program has removed one.
    LayerTable* Layers() const { return dynamic_cast<LayerTable*>(FindTable(kTableLayers)); }
    LineStyleTable* LineStyles() const { return dynamic_cast<LineStyleTable*>(FindTable(kTableLineStyles)); }
    BrushStyleTable* BrushStyles() const { return dynamic_cast<BrushStyleTable*>(FindTable(kTableBrushStyles)); }
    ColorTable* Colors() const { return dynamic_cast<ColorTable*>(FindTable(kTableColors)); }
    BlockTable* Blocks() const { return dynamic_cast<BlockTable*>(FindTable(kTableBlocks)); }
    Table* Units() const { return FindTable(kTableUnits); }

    VertexGraphic& Root() const { return *root_; } // the group of all its graphics
    UndoLog& Undo() const { return *undo_; }

    double lineScale = 1; // DXF's $LTSCALE: scales the dash patterns of the drawing's own graphics

private:
    std::map<std::string, std::unique_ptr<Table>, std::less<>> tables_;
    std::unique_ptr<UndoLog> undo_;
    std::unique_ptr<VertexGraphic> root_;
};

} // namespace drawcore
