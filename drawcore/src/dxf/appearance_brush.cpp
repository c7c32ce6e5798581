// Converts the pattern of a hatch, which is stored at the scale and angle of the hatch.
#include <algorithm>
#include <cmath>

#include "drawcore/src/dxf/appearance_parts.h"
#include "drawcore/src/dxf/placement.h"
#include "drawcore/src/dxf/text_decoding.h"

namespace dxf {

namespace {

using Family = Hatch::PatternLine;

constexpr size_t kMaxLines = 256; // far more than in the largest real patterns
constexpr size_t kMaxDashes = 64;

Vec3 RotatedAndScaled(const Vec3& p, double angle, double scale) {
    const double c = std::cos(angle) * scale, s = std::sin(angle) * scale;
    return {p.x * c - p.y * s, p.x * s + p.y * c, 0};
}

// Normalizes lines, ignoring the start of the first.
std::vector<Family> NormalLines(const Hatch& hatch, double scale, double angle) {
    std::vector<Family> lines;
    for (const Family& from : hatch.lines) {
        Family& line = lines.emplace_back();
        line.angle = from.angle - drawcore::Degrees(angle);
        line.base = RotatedAndScaled(from.base - hatch.lines[0].base, -angle, 1 / scale);
        line.offset = RotatedAndScaled(from.offset, -angle, 1 / scale);
        for (const double dash : from.dashes)
            line.dashes.push_back(dash / scale);
    }
    return lines;
}

double Spacing(const Family& line) {
    const double angle = Radians(line.angle);
    return std::fabs(line.offset.y * std::cos(angle) - line.offset.x * std::sin(angle));
}

bool IsValid(const std::vector<Family>& lines) {
    return !lines.empty() && lines.size() <= kMaxLines &&
           std::all_of(lines.begin(), lines.end(), [](const Family& line) {
               return Spacing(line) > 0 && std::isfinite(Spacing(line)) && line.dashes.size() <= kMaxDashes;
           });
}

// Returns whether the difference is not visible, as in patterns that were computed by another program.
bool IsNearlyEqual(double a, double b) {
    return std::fabs(a - b) <= 1e-6 * (1 + std::max(std::fabs(a), std::fabs(b)));
}

} // namespace

bool SameLine(const Family& a, const Family& b) {
    const double p = Radians(a.angle), q = Radians(b.angle);
    return IsNearlyEqual(std::cos(p), std::cos(q)) && IsNearlyEqual(std::sin(p), std::sin(q)) &&
           IsNearlyEqual(a.base.x, b.base.x) && IsNearlyEqual(a.base.y, b.base.y) &&
           IsNearlyEqual(a.offset.x, b.offset.x) && IsNearlyEqual(a.offset.y, b.offset.y) &&
           std::equal(a.dashes.begin(), a.dashes.end(), b.dashes.begin(), b.dashes.end(), IsNearlyEqual);
}

bool SameLines(const std::vector<Family>& a, const std::vector<Family>& b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), SameLine);
}

BrushAppearance BrushOf(const Hatch& hatch) {
    BrushAppearance brush;
    if (hatch.solid || hatch.gradient) {
        brush.style = kSolidBrush;
        return brush;
    }
    const double scale = hatch.scale > 0 ? hatch.scale : 1, angle = Radians(std::fmod(hatch.angle, 360));
    std::vector<Family> lines = NormalLines(hatch, scale, angle);
    if (!IsValid(lines)) return brush;
    const std::string name = ToDisplayText(hatch.pattern);
    brush.style = name.empty() ? "Pattern" : name;
    brush.cross = hatch.crossed && lines.size() == 1;
    brush.lines = std::move(lines);
    brush.scale = scale;
    brush.angle = angle;
    return brush;
}

std::vector<Family> PlacedLines(const std::vector<Family>& lines, double scale, double angle, const Vec3& base) {
    std::vector<Family> placed;
    for (const Family& from : lines) {
        Family& line = placed.emplace_back();
        line.angle = from.angle + drawcore::Degrees(angle);
        line.base = base + RotatedAndScaled(from.base - lines[0].base, angle, scale);
        line.offset = RotatedAndScaled(from.offset, angle, scale);
        for (const double dash : from.dashes)
            line.dashes.push_back(dash * scale);
    }
    return placed;
}

// Each line consists of its angle, base, offset, number of dashes, and dashes.
bool LinesFromNumbers(const std::vector<double>& numbers, std::vector<Family>& lines) {
    constexpr size_t kHead = 6;
    std::vector<Family> read;
    for (size_t at = 0; at < numbers.size();) {
        if (numbers.size() - at < kHead) return false;
        const double* n = &numbers[at];
        const size_t left = numbers.size() - at - kHead;
        if (!(n[5] >= 0 && n[5] <= static_cast<double>(left))) return false;
        const auto dashes = static_cast<size_t>(n[5]);
        read.push_back({n[0], {n[1], n[2], 0}, {n[3], n[4], 0}, {n + kHead, n + kHead + dashes}});
        at += kHead + dashes;
    }
    if (!read.empty() && !IsValid(read)) return false;
    lines = std::move(read);
    return true;
}

std::vector<double> NumbersFromLines(const std::vector<Family>& lines) {
    std::vector<double> numbers;
    for (const Family& line : lines) {
        numbers.insert(numbers.end(), {line.angle, line.base.x, line.base.y, line.offset.x, line.offset.y,
                                       static_cast<double>(line.dashes.size())});
        numbers.insert(numbers.end(), line.dashes.begin(), line.dashes.end());
    }
    return numbers;
}

} // namespace dxf
