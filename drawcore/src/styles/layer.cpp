// Fills the layer table.
#include "drawcore/src/styles/layer.h"

namespace drawcore {

LayerTable::LayerTable(DrawingStruct* owner) : TableOf(owner) {
    Add(std::make_unique<Layer>("0"));
}

std::unique_ptr<TableEntry> LayerTable::MakeEntry(std::string_view name, void*) {
    return std::make_unique<Layer>(name);
}

} // namespace drawcore
