// The tables of a drawing.
#include "drawcore/src/graphics/drawing_contents.h"

#include "drawcore/src/graphics/drawing_root.h"
#include "drawcore/src/graphics/text_face.h"
#include "drawcore/src/graphics/undo_log.h"
#include "drawcore/src/tables/live.h"
#include "drawcore/src/tables/unit_variables.h"

namespace drawcore {

DrawingContents::DrawingContents()
    : DrawingStruct{}, undo_(std::make_unique<UndoLog>()), root_(std::make_unique<DrawingRoot>()) {
    Live<DrawingStruct>::Add(this);
    AddTable(kTableLayers, std::make_unique<LayerTable>(this));
    AddTable(kTableLineStyles, std::make_unique<LineStyleTable>(this));
    AddTable(kTableBrushStyles, std::make_unique<BrushStyleTable>(this));
    AddTable(kTableColors, std::make_unique<ColorTable>(this));
    AddTable(kTableBlocks, std::make_unique<BlockTable>(this));
    Table* units = AddTable(kTableUnits, std::make_unique<Table>(this));
    StoreUnits(UnitSettings(), *units);
    units->SetVariable(kUnitFontName, TextFace::Get({}, 0).Name());
    pUnits = units;
    root_->Attach(this);
}

DrawingContents::~DrawingContents() {
    Live<DrawingStruct>::Remove(this);
}

DrawingContents* DrawingContents::Find(DrawingStruct* drawing) {
    return Live<DrawingStruct>::Has(drawing) ? static_cast<DrawingContents*>(drawing) : nullptr;
}

Table* DrawingContents::FindTable(std::string_view name) const {
    const auto found = tables_.find(name);
    return found == tables_.end() ? nullptr : found->second.get();
}

Table* DrawingContents::AddTable(std::string_view name, std::unique_ptr<Table> table) {
    const auto [at, added] = tables_.emplace(name, std::move(table));
    return added ? at->second.get() : nullptr;
}

bool DrawingContents::RemoveTable(Table* table) {
    for (auto at = tables_.begin(); at != tables_.end(); ++at) {
        if (at->second.get() != table) continue;
        if (pUnits == table) pUnits = nullptr;
        tables_.erase(at);
        return true;
    }
    return false;
}

} // namespace drawcore
