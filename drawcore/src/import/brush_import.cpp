// The pattern of a hatch as a brush style, each pattern once.
#include "drawcore/src/import/brush_import.h"

#include <algorithm>
#include <cmath>

#include "drawcore/src/database/encoding.h"
#include "drawcore/src/dxf/placement.h"
#include "drawcore/src/dxf/text_decoding.h"

namespace drawcore {

namespace {

constexpr size_t kMostLines = 256; // of real patterns the largest have a few dozen
constexpr size_t kMostDashes = 64;
constexpr int kMostNumbers = 1000; // of patterns under one name

struct PatternPlace {
    double scale;
    double angle;
};

Point Normal(const Vec3& p, const PatternPlace& place) {
    const double c = std::cos(place.angle) / place.scale, s = std::sin(place.angle) / place.scale;
    return {p.x * c + p.y * s, p.y * c - p.x * s};
}

// A file holds its pattern as this one hatch shows it; where the first line starts does not count.
std::vector<PatternLine> NormalLines(const dxf::Hatch& hatch, const PatternPlace& place) {
    std::vector<PatternLine> lines;
    for (const dxf::Hatch::PatternLine& from : hatch.lines) {
        PatternLine& line = lines.emplace_back();
        line.angle = Radians(from.angle) - place.angle;
        line.base = Normal(from.base - hatch.lines[0].base, place);
        line.offset = Normal(from.offset, place);
        for (const double dash : from.dashes)
            line.dashes.push_back(dash / place.scale);
    }
    return lines;
}

bool Near(double a, double b) {
    return std::fabs(a - b) <= 1e-6 * (1 + std::max(std::fabs(a), std::fabs(b)));
}

bool SameLine(const PatternLine& a, const PatternLine& b) {
    return Near(std::cos(a.angle), std::cos(b.angle)) && Near(std::sin(a.angle), std::sin(b.angle)) &&
           Near(a.base.x, b.base.x) && Near(a.base.y, b.base.y) && Near(a.offset.x, b.offset.x) &&
           Near(a.offset.y, b.offset.y) &&
           std::equal(a.dashes.begin(), a.dashes.end(), b.dashes.begin(), b.dashes.end(), Near);
}

bool IsSound(const std::vector<PatternLine>& lines) {
    return !lines.empty() && lines.size() <= kMostLines &&
           std::all_of(lines.begin(), lines.end(), [](const PatternLine& line) {
               return line.Spacing() > 0 && std::isfinite(line.Spacing()) &&
                      line.dashes.size() <= kMostDashes;
           });
}

// The style that draws these lines, under the name or the name with a number; 0 if there is no room.
Id FindOrAddStyle(const std::string& name, const std::vector<PatternLine>& lines, BrushStyleTable& styles) {
    for (int number = 1; number <= kMostNumbers; ++number) {
        const std::string numbered = number == 1 ? name : name + " " + std::to_string(number);
        const BrushStyle* known = styles.At(numbered);
        if (!known) return styles.Add(std::make_unique<BrushStyle>(numbered, lines));
        if (std::equal(lines.begin(), lines.end(), known->lines.begin(), known->lines.end(), SameLine))
            return styles.IdOf(numbered);
    }
    return kNoId;
}

} // namespace

Brush ImportBrush(const dxf::Hatch& hatch, BrushStyleTable& styles) {
    Brush brush;
    if (hatch.solid || hatch.gradient) {
        brush.style = kBrushSolid;
        return brush;
    }
    const PatternPlace place{hatch.scale > 0 ? hatch.scale : 1, Radians(std::fmod(hatch.angle, 360))};
    const std::vector<PatternLine> lines = NormalLines(hatch, place);
    if (!IsSound(lines)) return brush;
    constexpr size_t kLongestName = 200;
    std::string name = CodePageFromUtf8(dxf::ToDisplayText(hatch.pattern)).substr(0, kLongestName);
    brush.style = FindOrAddStyle(name.empty() ? "Pattern" : name, lines, styles);
    brush.scale = place.scale;
    brush.angle = place.angle;
    brush.cross = hatch.crossed && lines.size() == 1;
    return brush;
}

} // namespace drawcore
