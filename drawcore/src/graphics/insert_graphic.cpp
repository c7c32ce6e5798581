// Traces the cells of an insertion, and manages its vertices.
#include "drawcore/src/graphics/insert_graphic.h"

#include <algorithm>

#include "drawcore/src/graphics/drawing_contents.h"
#include "drawcore/src/graphics/properties.h"
#include "drawcore/src/graphics/trace.h"

namespace drawcore {

namespace {

constexpr int kDeepest = 64; // maximum nesting depth; deeper blocks are not drawn

bool IsOpen(const Block* block, const Trace& trace) {
    for (const Trace* at = &trace; at; at = at->outer)
        if (at->block == block) return true;
    return false;
}

bool operator==(const InsertArray& a, const InsertArray& b) {
    return a.columns == b.columns && a.rows == b.rows && a.columnStep == b.columnStep && a.rowStep == b.rowStep;
}

} // namespace

InsertGraphic::InsertGraphic(Id blockId, const dxf::AxisEnds& ends)
    : Graphic(kGraphicInsert, &kInsertProperties), block(blockId) {
    Place(ends);
}

InsertGraphic::InsertGraphic(const InsertGraphic& other)
    : Graphic(other), block(other.block), more_(other.more_ ? std::make_unique<More>(*other.more_) : nullptr) {
    std::copy(std::begin(other.vertices), std::end(other.vertices), vertices);
}

InsertGraphic::More& InsertGraphic::GetMore() {
    if (!more_) more_ = std::make_unique<More>();
    return *more_;
}

// Steps of length 0 are stored too, because the file contains them.
void InsertGraphic::SetArray(const InsertArray& array) {
    if (more_ || !(array == InsertArray())) GetMore().array = array;
}

void InsertGraphic::Place(const dxf::AxisEnds& ends) {
    StorePlacement();
    for (size_t i = 0; i < ends.size(); ++i)
        vertices[i].Set(ends[i]);
}

dxf::AxisEnds InsertGraphic::Ends() const {
    return {vertices[0].Position(), vertices[1].Position(), vertices[2].Position(), vertices[3].Position()};
}

std::unique_ptr<Graphic> InsertGraphic::CloneState() const {
    return std::make_unique<InsertGraphic>(*this);
}

void InsertGraphic::Restore(const Graphic& saved) {
    const auto& other = static_cast<const InsertGraphic&>(saved);
    RestoreAttributes(other);
    std::copy(std::begin(other.vertices), std::end(other.vertices), vertices);
    block = other.block;
}

size_t InsertGraphic::StateSize() const {
    return sizeof *this;
}

bool InsertGraphic::EqualState(const Graphic& saved) const {
    const auto& other = static_cast<const InsertGraphic&>(saved);
    return EqualAttributes(other) && std::equal(std::begin(vertices), std::end(vertices), other.vertices) &&
           block == other.block && Array() == other.Array();
}

Matrix InsertGraphic::Placement() const {
    return dxf::PlacementOf(Ends());
}

void InsertGraphic::StorePlacement() {
    const bool leads = MemberCount() > 0 || !Array().IsOne();
    if (leads && !(more_ && more_->first)) GetMore().first = Placement();
}

Vertex* InsertGraphic::VertexAt(size_t index) {
    if (index >= std::size(vertices)) return nullptr;
    StorePlacement();
    return &vertices[index];
}

bool InsertGraphic::FindMotion(Matrix& motion) const {
    if (!more_ || !more_->first) return false;
    const Matrix& first = *more_->first;
    const Matrix now = Placement();
    if (std::equal(&now.at[0][0], &now.at[0][0] + 16, &first.at[0][0])) return false;
    motion = dxf::MotionBetween(first, now);
    return true;
}

InsertArray InsertGraphic::MovedArray() const {
    InsertArray moved = Array();
    Matrix motion;
    if (!moved.IsOne() && FindMotion(motion)) {
        moved.columnStep = motion.ApplyToVector(moved.columnStep);
        moved.rowStep = motion.ApplyToVector(moved.rowStep);
    }
    return moved;
}

void InsertGraphic::TraceShape(const Trace& trace, const PenUse& use) const {
    const Block* shown = trace.tools.blocks ? trace.tools.blocks->At(block) : nullptr;
    if (!shown || trace.depth >= kDeepest || IsOpen(shown, trace)) return;
    Trace inner = trace;
    inner.outer = &trace;
    inner.block = shown;
    inner.depth = trace.depth + 1;
    inner.layer = EffectiveLayer(*this, trace);
    inner.color = use.color;
    inner.style = use.style;
    inner.penWidth = use.width;
    const Matrix first = Matrix::Translation(shown->base * -1) * Placement();
    const InsertArray moved = MovedArray();
    for (int row = 0; row < moved.rows; ++row)
        for (int column = 0; column < moved.columns && trace.tools.budget > 0; ++column) {
            const Vec3 shift = moved.columnStep * column + moved.rowStep * row;
            inner.matrix = first * Matrix::Translation(shift) * trace.matrix;
            TraceGraphic(shown->Content(), inner);
        }
}

void InsertGraphic::AddShapeExtents(Extents& extents) const {
    static int depth = 0;
    const DrawingContents* drawing = GetDrawing();
    const Block* shown = drawing && drawing->Blocks() ? drawing->Blocks()->At(block) : nullptr;
    if (!shown || depth >= kDeepest) return;
    ++depth;
    const Extents box = shown->Content().GetExtents().Transformed(Matrix::Translation(shown->base * -1) * Placement());
    --depth;
    const InsertArray moved = MovedArray();
    for (const int row : {0, moved.rows - 1})
        for (const int column : {0, moved.columns - 1})
            extents.Add(box.Transformed(Matrix::Translation(moved.columnStep * column + moved.rowStep * row)));
}

} // namespace drawcore
