// Making and freeing a drawing; its tables and its coordinate space.
#include "drawcore/src/database/drawing.h"

#include "drawcore/include/drawcore/drawing.h"
#include "drawcore/src/database/application.h"
#include "drawcore/src/database/dxf_source.h"
#include "drawcore/src/database/live.h"
#include "drawcore/src/database/undo.h"
#include "drawcore/src/graphics/drawing_root.h"
#include "drawcore/src/graphics/text_face.h"
#include "drawcore/src/units/unit_settings.h"
#include "orlo/host/drawing.h"
#include "orlo/host/units.h"

namespace drawcore {

Drawing::Drawing() : DrawingStruct{}, undo_(std::make_unique<UndoLog>()), root_(std::make_unique<DrawingRoot>()) {
    Live<DrawingStruct>::Enter(this);
    pApplication = &Application::Get();
    AddTable(kTableLayers, std::make_unique<LayerTable>(this));
    AddTable(kTableLineStyles, std::make_unique<LineStyleTable>(this));
    AddTable(kTableBrushStyles, std::make_unique<BrushStyleTable>(this));
    AddTable(kTableColors, std::make_unique<ColorTable>(this));
    AddTable(kTableBlocks, std::make_unique<BlockTable>(this));
    Table* units = AddTable(kTableUnits, std::make_unique<Table>(this));
    UnitSettings().Store(*units);
    units->SetVariable(kUnitFontName, TextFace::Get({}, 0).Name());
    pUnits = units;
    root_->Attach(this);
}

Drawing::~Drawing() {
    Live<DrawingStruct>::Leave(this);
    Application::Get().Remove(*this);
}

Drawing* Drawing::Find(DrawingStruct* drawing) {
    return Live<DrawingStruct>::Has(drawing) ? static_cast<Drawing*>(drawing) : nullptr;
}

Table* Drawing::FindTable(std::string_view name) const {
    const auto found = tables_.find(name);
    return found == tables_.end() ? nullptr : found->second.get();
}

Table* Drawing::AddTable(std::string_view name, std::unique_ptr<Table> table) {
    const auto [at, added] = tables_.emplace(name, std::move(table));
    return added ? at->second.get() : nullptr;
}

bool Drawing::RemoveTable(Table* table) {
    for (auto at = tables_.begin(); at != tables_.end(); ++at) {
        if (at->second.get() != table) continue;
        if (pUnits == table) pUnits = nullptr;
        tables_.erase(at);
        return true;
    }
    return false;
}

} // namespace drawcore

using namespace drawcore;

DrawingStruct* DrawingNew(void) {
    return new (std::nothrow) Drawing;
}

void DrawingDispose(DrawingStruct** drawing) {
    if (!drawing) return;
    delete Drawing::Find(*drawing);
    *drawing = nullptr;
}

GraphicStruct* DrawingGetRoot(DrawingStruct* drawing) {
    Drawing* found = Drawing::Find(drawing);
    return found ? &found->Root() : nullptr;
}

uint16_t DrawingGetCoordSpace(DrawingStruct* drawing) {
    const Drawing* found = Drawing::Find(drawing);
    return found ? found->coordSpace : uint16_t{kSpaceDevice}; // no drawing has no lengths
}

int DrawingSetCoordSpace(DrawingStruct* drawing, uint16_t space) {
    Drawing* found = Drawing::Find(drawing);
    if (!found || space > kSpaceDevice) return 0;
    found->coordSpace = space;
    return 1;
}

TableStruct* DrawingGetTable(DrawingStruct* drawing, const char* name) {
    Drawing* found = Drawing::Find(drawing);
    return found && name ? found->FindTable(name) : nullptr;
}

TableStruct* DrawingAddTable(DrawingStruct* drawing, const char* name) {
    Drawing* found = Drawing::Find(drawing);
    return found && name ? found->AddTable(name, std::make_unique<Table>(found)) : nullptr;
}

int DrawingDeleteTable(DrawingStruct* drawing, TableStruct* table) {
    Drawing* found = Drawing::Find(drawing);
    Table* gone = Table::Find(table);
    return found && gone && found->RemoveTable(gone);
}
