// Clips segments and outlines by each side of the box.
#include "drawcore/src/paint/path_clip.h"

#include <algorithm>
#include <cmath>

namespace drawcore {

namespace {

Point Between(const Point& a, const Point& b, double share) {
    return {a.x + (b.x - a.x) * share, a.y + (b.y - a.y) * share};
}

// Limits [from, to] to the range where start + share * change <= limit.
bool Narrow(double start, double change, double limit, double& from, double& to) {
    const double distance = limit - start;
    if (change == 0) return distance >= 0;
    if (change > 0)
        to = std::min(to, distance / change);
    else
        from = std::max(from, distance / change);
    return from <= to;
}

// Clips a polygon by one side of the box.
template <class Distance>
void ClipPolygon(const std::vector<Point>& in, std::vector<Point>& out, Distance distance) {
    out.clear();
    for (size_t i = 0; i < in.size(); ++i) {
        const Point &a = in[i], &b = in[(i + 1) % in.size()];
        const double da = distance(a), db = distance(b);
        if (da >= 0) out.push_back(a);
        if ((da >= 0) != (db >= 0)) out.push_back(Between(a, b, da / (da - db)));
    }
}

} // namespace

Where Locate(const Path& path, const Box& box) {
    if (path.points.empty()) return Where::Undefined;
    Point low = path.points.front(), high = low;
    bool isFinite = true;
    for (const Point& p : path.points) {
        isFinite = isFinite && std::isfinite(p.x) && std::isfinite(p.y);
        low = {std::min(low.x, p.x), std::min(low.y, p.y)};
        high = {std::max(high.x, p.x), std::max(high.y, p.y)};
    }
    if (!isFinite) return Where::Undefined;
    if (box.Contains(low) && box.Contains(high)) return Where::Inside;
    const bool disjoint = low.x > box.right || high.x < box.left || low.y > box.bottom || high.y < box.top;
    return disjoint ? Where::Outside : Where::Across;
}

bool ClipSegment(const Point& a, const Point& b, const Box& box, double& from, double& to) {
    from = 0;
    to = 1;
    const double dx = b.x - a.x, dy = b.y - a.y;
    return Narrow(a.x, dx, box.right, from, to) && Narrow(-a.x, -dx, -box.left, from, to) &&
           Narrow(a.y, dy, box.bottom, from, to) && Narrow(-a.y, -dy, -box.top, from, to);
}

void ClipLines(const Path& path, const Box& box, Path& clipped) {
    clipped.Clear();
    for (size_t line = 0; line < path.Count(); ++line) {
        const size_t begin = path.Begin(line), end = path.End(line);
        if (end - begin == 1 && box.Contains(path.points[begin])) clipped.MoveTo(path.points[begin]);
        bool joined = false; // the last part ends where the next begins
        for (size_t i = begin; i + 1 < end; ++i) {
            const Point &a = path.points[i], &b = path.points[i + 1];
            double from, to;
            if (!ClipSegment(a, b, box, from, to)) {
                joined = false;
                continue;
            }
            if (!joined || from > 0) clipped.MoveTo(Between(a, b, from));
            clipped.LineTo(Between(a, b, to), path.corners[i + 1]);
            joined = to >= 1;
        }
    }
}

void ClipAreas(const Path& path, const Box& box, Path& clipped) {
    clipped.Clear();
    std::vector<Point> one, two;
    for (size_t area = 0; area < path.Count(); ++area) {
        one.assign(path.points.begin() + static_cast<std::ptrdiff_t>(path.Begin(area)),
                   path.points.begin() + static_cast<std::ptrdiff_t>(path.End(area)));
        ClipPolygon(one, two, [&](const Point& p) { return p.x - box.left; });
        ClipPolygon(two, one, [&](const Point& p) { return box.right - p.x; });
        ClipPolygon(one, two, [&](const Point& p) { return p.y - box.top; });
        ClipPolygon(two, one, [&](const Point& p) { return box.bottom - p.y; });
        for (size_t i = 0; i < one.size(); ++i) {
            if (i)
                clipped.LineTo(one[i]);
            else
                clipped.MoveTo(one[i]);
        }
    }
}

} // namespace drawcore
