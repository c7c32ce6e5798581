// Traces and transforms lists of vertices.
#include "drawcore/src/graphics/vertex_graphic.h"

#include <algorithm>
#include <cmath>
#include <tuple>

#include "drawcore/src/geometry/flatten.h"
#include "drawcore/src/graphics/properties.h"
#include "drawcore/src/graphics/trace.h"

namespace drawcore {

Vertex& Vertex::operator=(const Vertex& other) {
    if (this == &other) return *this;
    wFlags = other.wFlags;
    Set(other.Position());
    SetNext(other.Next());
    return *this;
}

void Vertex::SetNext(const Segment& segment) {
    const Segment* stored = segment.IsPlain() ? nullptr : new Segment(segment);
    delete GetHostPart().segment;
    SetHostPart({stored, GetHostPart().owner});
}

bool operator==(const Vertex& a, const Vertex& b) {
    const Segment one = a.Next(), other = b.Next();
    return std::tie(a.wFlags, one.bulge, one.startWidth, one.endWidth) ==
               std::tie(b.wFlags, other.bulge, other.startWidth, other.endWidth) &&
           a.Position() == b.Position();
}

VertexGraphic::VertexGraphic() : Graphic(kGraphicVertices, &kShapeProperties) {}

Kind VertexGraphic::GetKind() const {
    return IsGroup() ? Kind::Group : Kind::Vertices;
}

std::unique_ptr<Graphic> VertexGraphic::CloneState() const {
    return std::make_unique<VertexGraphic>(*this);
}

void VertexGraphic::Restore(const Graphic& saved) {
    const auto& other = static_cast<const VertexGraphic&>(saved);
    RestoreAttributes(other);
    vertices = other.vertices;
    closed = other.closed;
}

size_t VertexGraphic::StateSize() const {
    return sizeof *this + vertices.size() * sizeof(Vertex);
}

bool VertexGraphic::EqualState(const Graphic& saved) const {
    const auto& other = static_cast<const VertexGraphic&>(saved);
    return EqualAttributes(other) && vertices == other.vertices && closed == other.closed;
}

namespace {

// Adds the segment from a to b with the bulge of a.
void AddSegment(const Vertex& a, const Vertex& b, const Trace& trace, Path& path) {
    if (const std::optional<EllipseArc> arc = ArcOfBulge(a.Position(), b.Position(), a.Next().bulge))
        FlattenArc(*arc, trace.matrix, trace.sink.Tolerance(), path);
    else
        path.LineTo(trace.matrix.Plan(b.Position()));
}

bool IsDrawn(const Vertex& vertex) {
    return vertex.wFlags & kVertexDrawn;
}

// Builds the strokes of a list.
void BuildStrokes(const VertexGraphic& graphic, const Trace& trace, Path& path) {
    const std::vector<Vertex>& list = graphic.vertices;
    const size_t count = list.size();
    path.Clear();
    bool moved = false; // to the previous vertex
    for (size_t i = 1; i < count; ++i) {
        if (!IsDrawn(list[i])) {
            moved = false;
            continue;
        }
        if (!moved) path.MoveTo(trace.matrix.Plan(list[i - 1].Position()));
        AddSegment(list[i - 1], list[i], trace, path);
        moved = true;
    }
    if (!graphic.closed || count < 2) return;
    if (!moved) path.MoveTo(trace.matrix.Plan(list.back().Position()));
    AddSegment(list.back(), list.front(), trace, path);
}

// Returns whether the list goes to this vertex and back without drawing: such a detour encloses nothing and is skipped.
bool IsExcursion(const std::vector<Vertex>& list, size_t i) {
    return i > 0 && i + 1 < list.size() && !IsDrawn(list[i]) && !IsDrawn(list[i + 1]) &&
           list[i - 1].Position() == list[i + 1].Position();
}

// Builds a single outline through all vertices.
void BuildOutline(const VertexGraphic& graphic, const Trace& trace, Path& path) {
    const std::vector<Vertex>& list = graphic.vertices;
    path.Clear();
    path.MoveTo(trace.matrix.Plan(list.front().Position()));
    for (size_t i = 1; i < list.size(); ++i) {
        if (IsExcursion(list, i))
            ++i;
        else
            AddSegment(list[i - 1], list[i], trace, path);
    }
    if (graphic.closed) AddSegment(list.back(), list.front(), trace, path);
}

// A segment with its own widths as an area: pairs of points left and right of its flattened center line.
class WideSegment {
public:
    WideSegment(const Vertex& a, const Vertex& b, const Trace& trace) : scale_(trace.matrix.PlanScale()) {
        middle_.MoveTo(trace.matrix.Plan(a.Position()));
        AddSegment(a, b, trace, middle_);
        for (size_t i = 1; i < middle_.points.size(); ++i)
            length_ += Distance(i);
        start_ = a.Next().startWidth;
        end_ = a.Next().endWidth;
    }

    void Outline(Path& path) const {
        path.Clear();
        if (length_ <= 0) return;
        const size_t count = middle_.points.size();
        double along = 0;
        path.MoveTo(Side(0, 0, 1));
        for (size_t i = 1; i < count; ++i)
            path.LineTo(Side(i, (along += Distance(i)) / length_, 1));
        for (size_t i = count; i-- > 0; along -= i ? Distance(i) : 0)
            path.LineTo(Side(i, along / length_, -1));
    }

private:
    double Distance(size_t i) const {
        const Point &p = middle_.points[i - 1], &q = middle_.points[i];
        return std::hypot(q.x - p.x, q.y - p.y);
    }
    Point Side(size_t i, double share, double side) const {
        const Point& before = middle_.points[i ? i - 1 : 0];
        const Point& after = middle_.points[std::min(i + 1, middle_.points.size() - 1)];
        const double dx = after.x - before.x, dy = after.y - before.y, norm = std::hypot(dx, dy);
        const double half = norm > 0 ? side * scale_ * (start_ + (end_ - start_) * share) / 2 / norm : 0;
        return {middle_.points[i].x - dy * half, middle_.points[i].y + dx * half};
    }

    Path middle_;
    double scale_, length_ = 0, start_ = 0, end_ = 0;
};

bool HasWidth(const Segment& segment) {
    return segment.startWidth > 0 || segment.endWidth > 0;
}

bool HasWidths(const std::vector<Vertex>& vertices) {
    return std::any_of(vertices.begin(), vertices.end(), [](const Vertex& v) { return HasWidth(v.Next()); });
}

// Traces segments with widths as areas in the pen's color.
void TraceWidths(const VertexGraphic& graphic, const Trace& trace, const PenUse& use) {
    BrushUse solid;
    solid.color = use.color;
    const size_t count = graphic.vertices.size();
    for (size_t i = 0; i + (graphic.closed ? 0 : 1) < count; ++i) {
        const Vertex &a = graphic.vertices[i], &b = graphic.vertices[(i + 1) % count];
        const bool drawn = i + 1 == count || (b.wFlags & kVertexDrawn);
        if (!drawn || !HasWidth(a.Next())) continue;
        WideSegment(a, b, trace).Outline(trace.tools.path);
        trace.sink.Fill(trace.tools.path, solid);
    }
}

} // namespace

void VertexGraphic::TraceShape(const Trace& trace, const PenUse& use) const {
    if (vertices.empty()) return;
    Path& path = trace.tools.path;
    if (GetBrush().style != kBrushStyleNone && vertices.size() > 2) {
        if (dwOneOutline)
            BuildOutline(*this, trace, path);
        else
            BuildStrokes(*this, trace, path);
        TraceFill(*this, trace, use);
    }
    if (!use.strokes) return;
    if (HasWidths(vertices)) TraceWidths(*this, trace, use);
    BuildStrokes(*this, trace, path);
    if (vertices.size() == 1) path.MoveTo(trace.matrix.Plan(vertices.front().Position()));
    trace.sink.Stroke(path, use);
}

double VertexGraphic::Reach() const {
    double widest = 0;
    for (const Vertex& vertex : vertices)
        widest = std::max({widest, vertex.Next().startWidth, vertex.Next().endWidth});
    return widest / 2;
}

void VertexGraphic::AddShapeExtents(Extents& extents) const {
    const auto isArc = [](const Vertex& v) { return v.Next().bulge != 0; };
    for (const Vertex& vertex : vertices)
        extents.Add(vertex.Position());
    if (std::any_of(vertices.begin(), vertices.end(), isArc)) Graphic::AddShapeExtents(extents);
}

} // namespace drawcore
