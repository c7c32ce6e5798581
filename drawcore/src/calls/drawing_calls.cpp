// Functions of the host contract and of drawcore/include for drawings and their tables.

#include <new>

#include "drawcore/include/drawcore/drawing.h"
#include "drawcore/src/database/drawing.h"
#include "drawcore/src/graphics/drawing_root.h"
#include "orlo/host/drawing.h"

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
    return found ? found->coordSpace : uint16_t{kSpaceDevice}; // without a drawing, lengths cannot be converted
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
    Table* removed = Table::Find(table);
    return found && removed && found->RemoveTable(removed);
}
