// Blocks: named groups of graphics that insertions draw; the table "_Blocks_".
#pragma once

#include "drawcore/src/geometry/matrix.h"
#include "drawcore/src/tables/table.h"

struct GraphicStruct;

namespace drawcore {

class DrawingContents;
class Graphic;

class Block : public TableEntry {
public:
    Block(std::string_view entryName, std::unique_ptr<Graphic> content);
    ~Block() override;
    void* Data() override; // a GraphicStruct*
    Graphic& Content() const { return *content_; }

    Vec3 base; // point of the contents that is placed at the insertion's origin

private:
    std::unique_ptr<Graphic> content_;
};

class BlockTable : public TableOf<Block> {
public:
    explicit BlockTable(DrawingContents* owner);
    DrawingContents* Owner() const;
    // data is a GraphicStruct* without an owner, which the block takes ownership of.
    std::unique_ptr<TableEntry> MakeEntry(std::string_view name, void* data) override;
    bool Remove(Id id) override;

    // Invalidates the insertions of the block with these contents, in the drawing and in its blocks.
    void InvalidateInsertionsOf(const Graphic& content) const;

private:
    void InvalidateInsertionsOf(Id id) const;
};

} // namespace drawcore
