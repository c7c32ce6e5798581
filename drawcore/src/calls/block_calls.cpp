// Functions of the host contract for blocks and insertions.

#include "drawcore/include/drawcore/table.h"
#include "drawcore/src/calls/matrix_record.h"
#include "drawcore/src/database/drawing.h"
#include "drawcore/src/graphics/insert_graphic.h"
#include "orlo/host/block.h"
#include "orlo/host/table.h"

using namespace drawcore;

namespace {

BlockTable* FindBlocks(TableStruct* table) {
    return dynamic_cast<BlockTable*>(Table::Find(table));
}

} // namespace

TableStruct* BlocksFromDrawing(DrawingStruct* drawing) {
    const Drawing* found = Drawing::Find(drawing);
    return found ? found->Blocks() : nullptr;
}

uint16_t BlocksFindBlock(TableStruct* blocks, const char* name) {
    return TableEntryGetIDFirst(blocks, nullptr, name);
}

uint16_t BlocksAddBlock(TableStruct* blocks, const char* name, GraphicStruct* contents) {
    return FindBlocks(blocks) ? TableEntryAdd(blocks, name, contents) : kNoId;
}

void BlockDispose(TableStruct* blocks, uint16_t id) {
    if (BlockTable* table = FindBlocks(blocks)) table->Remove(id);
}

GraphicStruct* BlockGetGraphic(TableStruct* blocks, uint16_t id) {
    BlockTable* table = FindBlocks(blocks);
    const Block* block = table ? table->At(id) : nullptr;
    return block ? &block->Content() : nullptr;
}

int InsertSetData(GraphicStruct* graphic, TableStruct* blocks, uint16_t id, const MatrixStruct* matrix) {
    auto* insert = graphic ? dynamic_cast<InsertGraphic*>(Graphic::From(graphic)) : nullptr;
    BlockTable* table = FindBlocks(blocks);
    if (!insert || !table || !table->At(id)) return 0;
    insert->ChangingShape();
    insert->block = id;
    insert->Place(dxf::AxisEndsOf(MatrixFromRecord(matrix)));
    if (!insert->GetDrawing()) insert->Attach(table->Owner());
    insert->ChangedShape();
    return 1;
}
