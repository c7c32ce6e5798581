// Insertions of a block: scaled, rotated, mirrored, arrayed. Members are attribute texts. Members and array steps are
// stored in the drawing's coordinates before the insertion was first moved, and move with it.
#pragma once

#include <optional>

#include "drawcore/src/dxf/placement.h"
#include "drawcore/src/graphics/graphic.h"
#include "drawcore/src/graphics/vertex.h"

namespace drawcore {

struct InsertArray {
    int columns = 1, rows = 1;
    Vec3 columnStep, rowStep; // from one cell to the next

    bool IsOne() const { return columns <= 1 && rows <= 1; }
};

class InsertGraphic : public Graphic {
public:
    // The vertices are the origin of the block and the end points of its axes.
    explicit InsertGraphic(Id blockId = kNoId, const dxf::AxisEnds& ends = dxf::AxisEndsOf(Matrix()));
    InsertGraphic(const InsertGraphic& other);

    Kind GetKind() const override { return Kind::Insert; }
    std::unique_ptr<Graphic> CloneState() const override;
    void Restore(const Graphic& saved) override;
    bool EqualState(const Graphic& saved) const override;
    size_t StateSize() const override;
    void TraceShape(const Trace& trace, const PenUse& use) const override;

    Vertex* VertexAt(size_t index) override;
    bool FindMotion(Matrix& motion) const override;

    // Returns the matrix from block to drawing coordinates, without the block's base point.
    Matrix Placement() const;
    dxf::AxisEnds Ends() const;
    void Place(const dxf::AxisEnds& ends);
    InsertArray Array() const { return more_ ? more_->array : InsertArray(); }
    void SetArray(const InsertArray& array);
    InsertArray MovedArray() const; // with the current placement

    Id block; // entry of "_Blocks_" of the drawing that this graphic is attached to
    Vertex vertices[4];

protected:
    void AddShapeExtents(Extents& extents) const override;

private:
    void StorePlacement(); // called before it is moved

    // Data that few insertions need.
    struct More {
        InsertArray array;
        std::optional<Matrix> first; // the placement before it was first moved, if it may have been
    };
    More& GetMore();

    std::unique_ptr<More> more_;
};

} // namespace drawcore
