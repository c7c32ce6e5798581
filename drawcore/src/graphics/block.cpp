// The block table, and invalidation of insertions when a block changes.
#include "drawcore/src/graphics/block.h"

#include "drawcore/src/graphics/drawing_contents.h"
#include "drawcore/src/graphics/insert_graphic.h"
#include "drawcore/src/graphics/vertex_graphic.h"

namespace drawcore {

Block::Block(std::string_view entryName, std::unique_ptr<Graphic> content)
    : TableEntry(entryName), content_(std::move(content)) {
    content_->isBlockContent_ = true;
}

Block::~Block() = default;

void* Block::Data() {
    return static_cast<GraphicStruct*>(content_.get());
}

BlockTable::BlockTable(DrawingContents* owner) : TableOf(owner) {}

DrawingContents* BlockTable::Owner() const {
    return static_cast<DrawingContents*>(Table::Owner());
}

std::unique_ptr<TableEntry> BlockTable::MakeEntry(std::string_view name, void* data) {
    if (!data) return nullptr;
    std::unique_ptr<Graphic> content(Graphic::From(static_cast<GraphicStruct*>(data)));
    content->Attach(Owner());
    return std::make_unique<Block>(name, std::move(content));
}

namespace {

void InvalidateIn(Graphic& graphic, Id block) {
    if (graphic.GetKind() == Kind::Insert && static_cast<InsertGraphic&>(graphic).block == block)
        graphic.ChangedShape();
    for (size_t i = 0; i < graphic.MemberCount(); ++i)
        InvalidateIn(*graphic.MemberAt(i), block);
}

} // namespace

bool BlockTable::Remove(Id id) {
    const bool removed = TableOf::Remove(id);
    if (removed) InvalidateInsertionsOf(id);
    return removed;
}

void BlockTable::InvalidateInsertionsOf(const Graphic& content) const {
    for (Id id = First(); id; id = Next(id))
        if (&At(id)->Content() == &content) InvalidateInsertionsOf(id);
}

void BlockTable::InvalidateInsertionsOf(Id id) const {
    InvalidateIn(Owner()->Root(), id);
    for (Id other = First(); other; other = Next(other))
        InvalidateIn(At(other)->Content(), id);
}

} // namespace drawcore
