// Generates the lines of a pattern in a box, and clips them to an outline.
#include "drawcore/src/paint/hatch_lines.h"

#include <algorithm>
#include <cmath>

#include "drawcore/src/paint/dashes.h"

namespace drawcore {

namespace {

// A family of lines in the coordinates of the areas.
struct Family {
    Point base, along, step; // a point on line 0, the normalized direction, and the offset of the next line
    double spacing;          // across the lines; negative if the next line is on the right
    double dashScale;
    const std::vector<double>* dashes;

    double Across(const Point& p) const { return (p.y - base.y) * along.x - (p.x - base.x) * along.y; }
    double Along(const Point& p) const { return (p.x - base.x) * along.x + (p.y - base.y) * along.y; }
};

Point Plan(const Vec3& v) {
    return {v.x, v.y};
}

bool MakeFamily(const PatternLine& line, const BrushUse& brush, bool crossed, Family& family) {
    constexpr double kRightAngle = 1.5707963267948966;
    const Matrix matrix = (crossed ? Matrix::RotationZ(kRightAngle) : Matrix()) * brush.pattern;
    const Vec3 along = matrix.ApplyToVector({std::cos(line.angle), std::sin(line.angle), 0});
    const double length = std::hypot(along.x, along.y);
    if (!std::isfinite(length) || length <= 0) return false;
    family.base = matrix.Plan({line.base.x, line.base.y, 0});
    family.along = {along.x / length, along.y / length};
    family.step = Plan(matrix.ApplyToVector({line.offset.x, line.offset.y, 0}));
    family.spacing = family.step.y * family.along.x - family.step.x * family.along.y;
    family.dashScale = length;
    family.dashes = &line.dashes;
    return std::isfinite(family.spacing) && family.spacing != 0;
}

std::vector<Family> Families(const BrushUse& brush) {
    std::vector<Family> families;
    Family family;
    for (const bool crossed : {false, true})
        for (const PatternLine& line : brush.style->lines)
            if ((!crossed || brush.cross) && MakeFamily(line, brush, crossed, family)) families.push_back(family);
    return families;
}

// The intersection of a line of a family with an edge of the areas.
struct Crossing {
    int64_t line;
    double along;
    int direction; // of the edge, across the line
};

// The lines that are visible in the box.
struct Lines {
    int64_t first, last;
};

Lines LinesIn(const Family& family, const Box& box) {
    double low = INFINITY, high = -INFINITY;
    for (const Point& p :
         {Point{box.left, box.top}, {box.right, box.top}, {box.left, box.bottom}, {box.right, box.bottom}}) {
        const double number = family.Across(p) / family.spacing;
        low = std::min(low, number);
        high = std::max(high, number);
    }
    constexpr double kFarthest = 1e15; // beyond, a double is too coarse to distinguish lines
    if (!(low > -kFarthest && high < kFarthest)) return {1, 0};
    return {static_cast<int64_t>(std::ceil(low)), static_cast<int64_t>(std::floor(high))};
}

void AddCrossings(const Family& family, const Point& a, const Point& b, const Lines& visible,
                  std::vector<Crossing>& found) {
    const double from = family.Across(a) / family.spacing, to = family.Across(b) / family.spacing;
    if (from == to) return;
    // A line through a corner intersects only the edge that ends above it: low < line <= high.
    const double low = std::min(from, to), high = std::max(from, to);
    const double first = std::max(std::floor(low) + 1, static_cast<double>(visible.first));
    const double last = std::min(std::floor(high), static_cast<double>(visible.last));
    const double alongA = family.Along(a), alongB = family.Along(b);
    for (double line = first; line <= last; ++line)
        found.push_back(
            {static_cast<int64_t>(line), alongA + (alongB - alongA) * (line - from) / (to - from), from < to ? 1 : -1});
}

// Adds the part of a line between two distances from the foot of the base point.
void AddPiece(const Family& family, int64_t line, double from, double to, const Box& box, Path& lines, Path& scratch) {
    const double out = family.spacing * static_cast<double>(line);
    const Point foot{family.base.x - family.along.y * out, family.base.y + family.along.x * out};
    const auto at = [&](double along) -> Point {
        return {foot.x + family.along.x * along, foot.y + family.along.y * along};
    };
    double begin, end;
    if (!ClipSegment(at(from), at(to), box, begin, end)) return;
    const double length = to - from;
    to = from + length * end;
    from += length * begin;
    const DashPattern pattern{*family.dashes, family.dashScale, false};
    if (family.dashes->empty() || !ShowsDashes(pattern, 2.0)) {
        lines.MoveTo(at(from));
        lines.LineTo(at(to));
        return;
    }
    // The pattern of this line starts at its base point: begin the part at a whole period before.
    double period = 0;
    for (const double item : *family.dashes)
        period += std::fabs(item) * family.dashScale;
    const double origin = static_cast<double>(line) * (family.step.x * family.along.x + family.step.y * family.along.y);
    const double start = origin + std::floor((from - origin) / period) * period;
    scratch.Clear();
    scratch.MoveTo(at(start));
    scratch.LineTo(at(to));
    Path dashes;
    CutDashes(scratch, pattern, box, dashes);
    // Removes the dashes before the part itself.
    for (size_t i = 0; i < dashes.Count(); ++i) {
        const Point &a = dashes.points[dashes.Begin(i)], &b = dashes.points[dashes.End(i) - 1];
        if (family.Along(b) < from) continue;
        lines.MoveTo(family.Along(a) < from ? at(from) : a);
        if (dashes.End(i) - dashes.Begin(i) > 1) lines.LineTo(b);
    }
}

void AddFamily(const Family& family, const Path& areas, bool winding, const Box& box, Path& lines) {
    const Lines visible = LinesIn(family, box);
    std::vector<Crossing> crossings;
    for (size_t area = 0; area < areas.Count(); ++area) {
        const size_t begin = areas.Begin(area), end = areas.End(area);
        for (size_t i = begin; i < end; ++i)
            AddCrossings(family, areas.points[i], areas.points[i + 1 < end ? i + 1 : begin], visible, crossings);
    }
    std::sort(crossings.begin(), crossings.end(), [](const Crossing& a, const Crossing& b) {
        return a.line != b.line ? a.line < b.line : a.along < b.along;
    });
    Path scratch;
    int inside = 0;
    for (size_t i = 0; i + 1 < crossings.size(); ++i) {
        inside = winding ? inside + crossings[i].direction : !inside;
        if (crossings[i].line != crossings[i + 1].line)
            inside = 0;
        else if (inside)
            AddPiece(family, crossings[i].line, crossings[i].along, crossings[i + 1].along, box, lines, scratch);
    }
}

} // namespace

bool ShowsHatch(const BrushUse& brush, double least) {
    const std::vector<Family> families = Families(brush);
    return !families.empty() && std::all_of(families.begin(), families.end(),
                                            [&](const Family& f) { return std::fabs(f.spacing) >= least; });
}

void HatchLines(const Path& areas, const BrushUse& brush, const Box& box, Path& lines) {
    lines.Clear();
    for (const Family& family : Families(brush))
        AddFamily(family, areas, brush.winding, box, lines);
}

} // namespace drawcore
