// Blocks and their insertions.

#include "database.h"

TableStruct* BlocksFromDrawing(DrawingStruct* drawing) {
    return ::DrawingGetTable(drawing, kTableBlocks);
}

uint16_t BlocksFindBlock(TableStruct* blocks, const char* name) {
    return ::TableEntryGetIDFirst(blocks, nullptr, name);
}

uint16_t BlocksAddBlock(TableStruct* blocks, const char* name, GraphicStruct* contents) {
    TableStruct* found = TableStruct::Find(blocks);
    if (!found || !name || !contents) return 0;
    const uint16_t id = found->Add(name, {});
    if (id == 0) return 0;
    found->At(id)->contents.reset(Graphic::From(contents));
    ::GraphicAttach(contents, found->owner);
    return id;
}

void BlockDispose(TableStruct* blocks, uint16_t id) {
    if (TableStruct* found = TableStruct::Find(blocks)) found->entries.erase(id);
}

GraphicStruct* BlockGetGraphic(TableStruct* blocks, uint16_t id) {
    TableStruct* found = TableStruct::Find(blocks);
    Entry* entry = found ? found->At(id) : nullptr;
    return entry ? entry->contents.get() : nullptr;
}

int InsertSetData(GraphicStruct* graphic, TableStruct* blocks, uint16_t id, const MatrixStruct* matrix) {
    TableStruct* found = TableStruct::Find(blocks);
    if (!graphic || graphic->bType != kGraphicInsert || !found || !found->At(id)) return 0;
    Graphic& insertion = *Graphic::From(graphic);
    insertion.content.block = id;
    if (!insertion.drawing) insertion.Attach(found->owner);
    const MatrixStruct identity = {{{1, 0, 0, 0}, {0, 1, 0, 0}, {0, 0, 1, 0}, {0, 0, 0, 1}}};
    const auto& rows = (matrix ? matrix : &identity)->at;
    auto& corners = insertion.content.vertices;
    ::VertexSet(&corners[0], rows[3][0], rows[3][1], rows[3][2]);
    for (size_t axis = 0; axis < 3; ++axis)
        ::VertexSet(&corners[axis + 1], rows[3][0] + rows[axis][0], rows[3][1] + rows[axis][1],
                    rows[3][2] + rows[axis][2]);
    return 1;
}
