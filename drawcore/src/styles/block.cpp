#include "drawcore/src/styles/block.h"

#include "drawcore/src/database/drawing.h"
#include "drawcore/src/graphics/graphic.h"

namespace drawcore {

Block::Block(std::string_view entryName, std::unique_ptr<Graphic> content)
    : TableEntry(entryName), content_(std::move(content)) {}

Block::~Block() = default;

void* Block::Data() {
    return static_cast<GraphicStruct*>(content_.get());
}

std::unique_ptr<TableEntry> BlockTable::MakeEntry(std::string_view name, void* data) {
    if (!data) return nullptr;
    std::unique_ptr<Graphic> content(Graphic::From(static_cast<GraphicStruct*>(data)));
    content->Attach(Owner());
    return std::make_unique<Block>(name, std::move(content));
}

} // namespace drawcore
