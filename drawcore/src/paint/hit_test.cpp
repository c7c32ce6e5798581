// Distances to traced geometry, and the contents of a window.
#include "drawcore/src/paint/hit_test.h"

#include <algorithm>
#include <cmath>

#include "drawcore/src/paint/visible_members.h"

namespace drawcore {

namespace {

constexpr double kInch = 96; // in pixels; only affects the widths of pens on paper

double DistanceToSegment(const Point& p, const Point& a, const Point& b) {
    const double dx = b.x - a.x, dy = b.y - a.y, square = dx * dx + dy * dy;
    const double share = square > 0 ? std::clamp(((p.x - a.x) * dx + (p.y - a.y) * dy) / square, 0.0, 1.0) : 0;
    return std::hypot(p.x - a.x - dx * share, p.y - a.y - dy * share);
}

// Even-odd rule over all polylines of the path as closed outlines.
bool Encloses(const Path& areas, const Point& p) {
    bool inside = false;
    for (size_t area = 0; area < areas.Count(); ++area) {
        const size_t begin = areas.Begin(area), end = areas.End(area);
        for (size_t i = begin, last = end - 1; i < end; last = i++) {
            const Point &a = areas.points[last], &b = areas.points[i];
            if ((a.y > p.y) != (b.y > p.y) && p.x < a.x + (b.x - a.x) * (p.y - a.y) / (b.y - a.y)) inside = !inside;
        }
    }
    return inside;
}

// Returns the box of a row of text as an outline.
Path BoxOf(const TextRow& row) {
    Path box;
    const double bottom = -row.face->Descent();
    box.MoveTo(row.matrix.Plan({0, bottom, 0}));
    box.LineTo(row.matrix.Plan({row.width, bottom, 0}));
    box.LineTo(row.matrix.Plan({row.width, 1, 0}));
    box.LineTo(row.matrix.Plan({0, 1, 0}));
    box.LineTo(box.points.front());
    return box;
}

// Tests one graphic after the other; Begin starts the next.
class HitSink : public GeometrySink {
public:
    virtual void Begin() = 0;
    virtual bool IsHit() const = 0;
    double Tolerance() const override { return 0.5; }
    double DotSize() const override { return 0.75; }
    double PaperInch() const override { return kInch; }
};

class PointSink : public HitSink {
public:
    PointSink(Point point, double tolerance) : point_(point), tolerance_(tolerance) {}

    void Begin() override { hit_ = false; }
    bool IsHit() const override { return hit_; }
    bool Needs(const Extents& box, double reach) const override {
        const double slack = tolerance_ + reach;
        return !hit_ && point_.x >= box.low.x - slack && point_.x <= box.high.x + slack &&
               point_.y >= box.low.y - slack && point_.y <= box.high.y + slack;
    }
    void Stroke(const Path& path, const PenUse& use) override {
        const double slack = tolerance_ + use.width / 2;
        for (size_t line = 0; line < path.Count(); ++line) {
            const size_t begin = path.Begin(line), end = path.End(line);
            for (size_t i = begin; i < end && !hit_; ++i)
                hit_ = DistanceToSegment(point_, path.points[i ? i - (i > begin) : i], path.points[i]) <= slack;
        }
    }
    void Fill(const Path& outlines, const BrushUse&) override { hit_ = hit_ || Encloses(outlines, point_); }
    void Text(const TextRow& row) override { Fill(BoxOf(row), {}); }

private:
    const Point point_;
    const double tolerance_;
    bool hit_ = false;
};

class CrossingSink : public HitSink {
public:
    explicit CrossingSink(const Box& box) : box_(box) {}

    void Begin() override { hit_ = false; }
    bool IsHit() const override { return hit_; }
    bool Needs(const Extents& box, double reach) const override {
        const Box grown = box_.Grown(reach);
        return !hit_ && box.low.x <= grown.right && box.high.x >= grown.left && box.low.y <= grown.bottom &&
               box.high.y >= grown.top;
    }
    void Stroke(const Path& path, const PenUse&) override { Meet(path); }
    void Fill(const Path& outlines, const BrushUse&) override {
        Meet(outlines);
        hit_ = hit_ || Encloses(outlines, {box_.left, box_.top});
    }
    void Text(const TextRow& row) override { Fill(BoxOf(row), {}); }

private:
    void Meet(const Path& path) {
        double from, to;
        for (size_t line = 0; line < path.Count(); ++line) {
            const size_t begin = path.Begin(line), end = path.End(line);
            hit_ = hit_ || box_.Contains(path.points[begin]);
            for (size_t i = begin; i + 1 < end && !hit_; ++i)
                hit_ = ClipSegment(path.points[i], path.points[i + 1], box_, from, to);
        }
    }

    const Box box_;
    bool hit_ = false;
};

class InsideSink : public HitSink {
public:
    explicit InsideSink(const Box& box) : box_(box) {}

    void Begin() override {
        inside_ = true;
        any_ = false;
    }
    bool IsHit() const override { return any_ && inside_; }
    bool Needs(const Extents&, double) const override { return inside_; }
    void Stroke(const Path& path, const PenUse&) override { Check(path); }
    void Fill(const Path& outlines, const BrushUse&) override { Check(outlines); }
    void Text(const TextRow& row) override { Check(BoxOf(row)); }

private:
    void Check(const Path& path) {
        any_ = any_ || !path.points.empty();
        for (const Point& p : path.points)
            inside_ = inside_ && box_.Contains(p);
    }

    const Box box_;
    bool inside_ = true, any_ = false;
};

// Traces the members of a set one after the other.
class Picker {
public:
    // area: contains everything that can be hit.
    Picker(const Viewport& viewport, const Graphic& set, const Box& area, HitSink& sink, uint32_t filter)
        : set_(set), sink_(sink), filter_(filter), tools_(DrawingOf(viewport, set)), matrix_(viewport.ToDevice()),
          near_(set, area, matrix_, kInch) {}

    size_t Count() const { return near_.CountIn(set_); }
    Graphic* At(size_t number) const { return near_.At(set_, number); }

    bool Hits(size_t number) {
        const Graphic& member = *At(number);
        if (!PassesFilter(member, filter_) || IsLocked(member)) return false;
        sink_.Begin();
        tools_.budget = kTraceBudget;
        TraceGraphic(member, {sink_, tools_, matrix_});
        return sink_.IsHit();
    }

private:
    static const DrawingContents* DrawingOf(const Viewport& viewport, const Graphic& set) {
        const DrawingContents* drawing = DrawingContents::Find(viewport.drawing);
        return drawing ? drawing : set.GetDrawing();
    }
    bool IsLocked(const Graphic& member) const {
        const Layer* layer = tools_.layers ? tools_.layers->At(member.layer) : nullptr;
        return layer && layer->locked;
    }

    const Graphic& set_;
    HitSink& sink_;
    const uint32_t filter_;
    TraceTools tools_;
    const Matrix matrix_;
    const VisibleMembers near_;
};

} // namespace

Graphic* PickAt(const Viewport& viewport, const Graphic& set, Point device, double tolerance, uint32_t filter) {
    PointSink sink(device, tolerance);
    const Box area = Box{device.x, device.y, device.x, device.y}.Grown(tolerance);
    Picker picker(viewport, set, area, sink, filter);
    for (size_t i = picker.Count(); i-- > 0;)
        if (picker.Hits(i)) return picker.At(i);
    return nullptr;
}

std::vector<Graphic*> PickWithin(const Viewport& viewport, const Graphic& set, const Box& device, bool crossing,
                                 uint32_t filter) {
    CrossingSink crossingSink(device);
    InsideSink insideSink(device);
    HitSink& sink = crossing ? static_cast<HitSink&>(crossingSink) : insideSink;
    Picker picker(viewport, set, device, sink, filter);
    std::vector<Graphic*> found;
    for (size_t i = 0; i < picker.Count(); ++i)
        if (picker.Hits(i)) found.push_back(picker.At(i));
    return found;
}

} // namespace drawcore
