// Divides a path into the dashes of a pattern.
#include "drawcore/src/paint/dashes.h"

#include <algorithm>
#include <cmath>

namespace drawcore {

namespace {

constexpr double kFarthest = 1e12; // length along a line; beyond, a double is too coarse for dashes

double Period(const DashPattern& pattern) {
    double sum = 0;
    for (const double item : pattern.items)
        sum += std::fabs(item);
    return sum * pattern.scale;
}

// Divides one polyline, or its part between two corners.
class Cutter {
public:
    Cutter(const Path& path, const DashPattern& pattern, const Box& box, Path& dashes)
        : path_(path), pattern_(pattern), box_(box), dashes_(dashes), period_(Period(pattern)) {}

    void Cut(size_t first, size_t last) {
        double length = 0;
        for (size_t i = first; i < last; ++i)
            length += Distance(i);
        Fit(length);
        along_ = 0;
        drawnTo_ = -1;
        for (size_t i = first; i < last; ++i) {
            const double step = Distance(i);
            double from, to;
            if (step > 0 && ClipSegment(path_.points[i], path_.points[i + 1], box_, from, to))
                CutSegment(i, step, along_ + from * step, along_ + to * step);
            along_ += step;
        }
    }

private:
    double Distance(size_t i) const {
        const Point &a = path_.points[i], &b = path_.points[i + 1];
        return std::hypot(b.x - a.x, b.y - a.y);
    }

    // Sets the start of the pattern, and the solid ends of a fitted run.
    void Fit(double length) {
        headEnd_ = 0;
        tailStart_ = length;
        shift_ = 0;
        if (!(length < kFarthest)) headEnd_ = length; // solid
        const double dash = pattern_.items.front() * pattern_.scale;
        if (headEnd_ > 0 || !pattern_.fit || dash <= 0) return;
        const double periods = std::floor(length / period_);
        const double end = (length - periods * period_ + dash) / 2;
        headEnd_ = periods < 1 ? length : end;
        tailStart_ = periods < 1 ? length : length - end;
        shift_ = dash - end; // at the end of the first dash, one dash of the pattern has been drawn
    }

    // Adds the dashes of segment i, which begins at along_, between two distances from the start of the run.
    void CutSegment(size_t i, double step, double from, double to) {
        if (from < headEnd_) Draw(i, step, from, std::min(to, headEnd_));
        CutPattern(i, step, std::max(from, headEnd_), std::min(to, tailStart_));
        if (to > tailStart_) Draw(i, step, std::max(from, tailStart_), to);
    }

    void CutPattern(size_t i, double step, double from, double to) {
        if (from >= to) return;
        double start = std::floor((from + shift_) / period_) * period_ - shift_;
        while (start < to) {
            for (const double item : pattern_.items) {
                const double end = start + std::fabs(item) * pattern_.scale;
                const bool overlaps = item == 0 ? start >= from && start < to : end > from && start < to;
                if (item >= 0 && overlaps) Draw(i, step, std::max(start, from), std::min(end, to));
                start = end;
            }
        }
    }

    void Draw(size_t i, double step, double from, double to) {
        const Point begin = At(i, (from - along_) / step), end = At(i, (to - along_) / step);
        if (drawnTo_ != from) dashes_.MoveTo(begin);
        if (to > from) dashes_.LineTo(end);
        drawnTo_ = to;
    }

    Point At(size_t i, double share) const {
        const Point &a = path_.points[i], &b = path_.points[i + 1];
        return {a.x + (b.x - a.x) * share, a.y + (b.y - a.y) * share};
    }

    const Path& path_;
    const DashPattern& pattern_;
    const Box& box_;
    Path& dashes_;
    const double period_;
    double along_ = 0, drawnTo_ = -1, headEnd_ = 0, tailStart_ = 0, shift_ = 0;
};

} // namespace

bool ShowsDashes(const DashPattern& pattern, double least) {
    const bool hasGap = std::any_of(pattern.items.begin(), pattern.items.end(), [](double item) { return item < 0; });
    const double period = Period(pattern);
    return hasGap && std::isfinite(period) && period >= least;
}

void CutDashes(const Path& path, const DashPattern& pattern, const Box& box, Path& dashes) {
    dashes.Clear();
    Cutter cutter(path, pattern, box, dashes);
    for (size_t line = 0; line < path.Count(); ++line) {
        const size_t begin = path.Begin(line), end = path.End(line);
        if (end - begin == 1) dashes.MoveTo(path.points[begin]);
        if (end - begin < 2) continue;
        if (!pattern.fit) {
            cutter.Cut(begin, end - 1);
            continue;
        }
        for (size_t first = begin, i = begin + 1; i < end; ++i) {
            if (!path.corners[i] && i + 1 < end) continue;
            cutter.Cut(first, i);
            first = i;
        }
    }
}

} // namespace drawcore
