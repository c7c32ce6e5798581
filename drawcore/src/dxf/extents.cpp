// Computes extents over all entities, with the matrices of the insertions that contain them.

#include "drawcore/src/dxf/extents.h"

#include <algorithm>
#include <vector>

#include "drawcore/src/dxf/path.h"

namespace dxf {

using drawcore::Extents;

namespace {

// Extents of blocks in their own coordinates, computed on demand.
using BlockBoxes = std::vector<std::optional<Extents>>;

class ExtentsWalk : private PathSink {
public:
    ExtentsWalk(const Document& drawing, BlockBoxes& blockBoxes) : drawing_(drawing), blockBoxes_(blockBoxes) {}

    Extents OfModelSpace() {
        for (const Entity& entity : drawing_.entities)
            if (!entity.inPaperSpace) Add(entity, Matrix());
        return box_;
    }

    Extents Of(const Entity& entity) {
        Add(entity, Matrix());
        return box_;
    }

    Extents Of(const Block& block) {
        AddEntities(block, Matrix());
        return box_;
    }

private:
    // References of a document are acyclic and bounded, so that this ends.
    void Add(const Entity& entity, const Matrix& toWorld) {
        if (entity.invisible) return;
        if (const auto* insert = As<Insert>(entity))
            AddInsert(entity, *insert, toWorld);
        else if (const auto* dimension = As<Dimension>(entity))
            AddDimension(*dimension, toWorld);
        else if (const auto* text = As<Text>(entity))
            AddText(entity, *text, toWorld);
        else if (const auto* mtext = As<MText>(entity))
            MoveTo(toWorld.Apply(mtext->insertion));
        else
            Trace(entity, toWorld, *this);
    }

    void AddText(const Entity& entity, const Text& text, const Matrix& toWorld) {
        if (!text.hidden) MoveTo((ObjectSystem(entity.normal) * toWorld).Apply(text.insertion));
    }

    void AddInsert(const Entity& entity, const Insert& insert, const Matrix& toWorld) {
        for (const Entity& attribute : insert.attributes)
            Add(attribute, toWorld);
        if (insert.block == BlockIndex::none) return;
        const Block& block = drawing_.At(insert.block);
        const Extents& box = BoxOf(insert.block);
        // The corners of an array are determined by its outermost cells.
        for (uint32_t column = 0; column < insert.columns; column += std::max(insert.columns - 1, 1u))
            for (uint32_t row = 0; row < insert.rows; row += std::max(insert.rows - 1, 1u))
                AddBlock(block, box, InsertMatrix(entity, insert, block, column, row) * toWorld);
    }

    void AddDimension(const Dimension& dimension, const Matrix& toWorld) {
        if (dimension.block == BlockIndex::none) return;
        const Block& block = drawing_.At(dimension.block);
        AddBlock(block, BoxOf(dimension.block), DimensionMatrix(dimension, block) * toWorld);
    }

    const Extents& BoxOf(BlockIndex index) {
        std::optional<Extents>& box = blockBoxes_[static_cast<size_t>(index)];
        if (!box) box = ExtentsWalk(drawing_, blockBoxes_).Of(drawing_.At(index));
        return *box;
    }

    // Most insertions are inside the extents known so far; only those that extend beyond are measured in detail.
    void AddBlock(const Block& block, const Extents& box, const Matrix& toWorld) {
        if (!box_.Covers(box.Transformed(toWorld))) AddEntities(block, toWorld);
    }

    void AddEntities(const Block& block, const Matrix& toWorld) {
        for (const Entity& entity : block.entities) {
            const auto* text = As<Text>(entity);
            if (!text || text->role != Text::Role::definition) Add(entity, toWorld);
        }
    }

    void MoveTo(Vec3 p) override { box_.Add(p); }
    void LineTo(Vec3 p) override { box_.Add(p); }
    void ArcTo(const EllipseArc& arc) override { box_.Add(arc); }

    const Document& drawing_;
    BlockBoxes& blockBoxes_;
    Extents box_;
};

} // namespace

Extents ExtentsOf(const Document& drawing) {
    BlockBoxes blockBoxes(drawing.blocks.size());
    return ExtentsWalk(drawing, blockBoxes).OfModelSpace();
}

struct EntityExtents::Boxes {
    BlockBoxes ofBlocks;
};

EntityExtents::EntityExtents(const Document& drawing)
    : drawing_(drawing), boxes_(std::make_unique<Boxes>(Boxes{BlockBoxes(drawing.blocks.size())})) {}

EntityExtents::~EntityExtents() = default;

Extents EntityExtents::Of(const Entity& entity) {
    return ExtentsWalk(drawing_, boxes_->ofBlocks).Of(entity);
}

} // namespace dxf
