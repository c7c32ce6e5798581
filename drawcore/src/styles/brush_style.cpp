// The styles that every drawing has, and the calls of the host.
#include "drawcore/src/styles/brush_style.h"

#include <algorithm>
#include <cmath>

#include "drawcore/include/drawcore/brushstyle.h"
#include "drawcore/src/dxf/standard_brushes.h"
#include "orlo/host/style.h"

namespace drawcore {

namespace {

// Tiles of the bitmaps among the styles that every drawing has.
struct NamedBitmap {
    const char* name;
    BrushBitmap bitmap;
};
constexpr BrushBitmap::Colors kBrickColors = {0x00305CB0, 0x00D8E0E4};
constexpr NamedBitmap kBitmaps[] = {
    {"Dots 25%", {{0x88, 0x22, 0x88, 0x22, 0x88, 0x22, 0x88, 0x22}, {}}},
    {"Dots 50%", {{0xAA, 0x55, 0xAA, 0x55, 0xAA, 0x55, 0xAA, 0x55}, {}}},
    {"Dots 75%", {{0x77, 0xDD, 0x77, 0xDD, 0x77, 0xDD, 0x77, 0xDD}, {}}},
    {"Brick bitmap", {{0x00, 0xFE, 0xFE, 0xFE, 0x00, 0xEF, 0xEF, 0xEF}, kBrickColors}},
};

const BrushBitmap* FindBitmap(const std::string& name) {
    for (const NamedBitmap& named : kBitmaps)
        if (name == named.name) return &named.bitmap;
    return nullptr;
}

} // namespace

double PatternLine::Spacing() const {
    return std::fabs(offset.y * std::cos(angle) - offset.x * std::sin(angle));
}

std::vector<PatternLine> LinesFromFile(const std::vector<dxf::Hatch::PatternLine>& lines) {
    std::vector<PatternLine> made;
    for (const dxf::Hatch::PatternLine& from : lines) {
        PatternLine& line = made.emplace_back();
        line.angle = Radians(from.angle);
        line.base = {from.base.x, from.base.y};
        line.offset = {from.offset.x, from.offset.y};
        line.dashes = from.dashes;
    }
    return made;
}

BrushStyleTable::BrushStyleTable(Drawing* owner) : TableOf(owner) {
    for (const dxf::StandardBrush& brush : dxf::StandardBrushes()) {
        const BrushBitmap* bitmap = FindBitmap(brush.name);
        Add(bitmap ? std::make_unique<BrushStyle>(brush.name, *bitmap)
                   : std::make_unique<BrushStyle>(brush.name, LinesFromFile(brush.lines)));
    }
}

std::unique_ptr<TableEntry> BrushStyleTable::MakeEntry(std::string_view name, void*) {
    return std::make_unique<BrushStyle>(name, std::vector<PatternLine>{});
}

namespace {

constexpr size_t kShownDashes = 8; // what a caller's buffer takes
constexpr int kMostLines = 256;

const BrushStyle* FindStyle(TableStruct* table, uint16_t id) {
    const auto* styles = dynamic_cast<BrushStyleTable*>(Table::Find(table));
    return styles ? styles->At(id) : nullptr;
}

// The line at that place of the walk; the cookie becomes the place after it.
const BrushPatternStruct* LineAt(TableStruct* table, uint16_t id, int place, int* cookie) {
    const BrushStyle* style = FindStyle(table, id);
    if (!style || !cookie || place < 0 || static_cast<size_t>(place) >= style->lines.size()) return nullptr;
    *cookie = place + 1;
    return &style->lines[place];
}

bool HasFiniteNumbers(const BrushLine& line) {
    const auto finite = [](double item) { return std::isfinite(item); };
    return finite(line.angle) && finite(line.baseX) && finite(line.baseY) && finite(line.along) &&
           std::fabs(line.spacing) > 0 && finite(line.spacing) && line.dashCount >= 0 &&
           line.dashCount <= static_cast<int>(kShownDashes) &&
           std::all_of(line.dashes, line.dashes + line.dashCount, finite);
}

// The offset of the lines is given along and across them.
PatternLine FromHost(const BrushLine& from) {
    const double c = std::cos(from.angle), s = std::sin(from.angle);
    PatternLine line;
    line.angle = from.angle;
    line.base = {from.baseX, from.baseY};
    line.offset = {from.along * c - from.spacing * s, from.along * s + from.spacing * c};
    line.dashes.assign(from.dashes, from.dashes + from.dashCount);
    return line;
}

} // namespace

} // namespace drawcore

using namespace drawcore;

uint16_t BrushStyleGetFlags(TableStruct* table, uint16_t id) {
    const BrushStyle* style = FindStyle(table, id);
    if (!style) return 0;
    if (style->bitmap) return style->bitmap->colors ? 0 : kBrushTakesColor;
    return style->lines.empty() ? kBrushVector : kBrushVector | kBrushHasLines;
}

const BrushPatternStruct* BrushStyleGetFirstPattern(TableStruct* table, uint16_t id, int* cookie) {
    return LineAt(table, id, 0, cookie);
}

const BrushPatternStruct* BrushStyleGetNextPattern(TableStruct* table, uint16_t id, int* cookie) {
    return cookie ? LineAt(table, id, *cookie, cookie) : nullptr;
}

void BrushPatternGetData(const BrushPatternStruct* pattern, double* angle, double* baseX, double* baseY, double* along,
                         double* spacing, int* dashCount, double* dashes) {
    const auto* line = static_cast<const PatternLine*>(pattern);
    *angle = line->angle;
    *baseX = line->base.x;
    *baseY = line->base.y;
    *along = line->offset.x * std::cos(line->angle) + line->offset.y * std::sin(line->angle);
    *spacing = line->Spacing();
    const size_t count = std::min(line->dashes.size(), kShownDashes);
    *dashCount = static_cast<int>(count);
    std::copy_n(line->dashes.begin(), count, dashes);
}

uint16_t BrushStyleAddLines(TableStruct* table, const char* name, const BrushLine* lines, int count) {
    auto* styles = dynamic_cast<BrushStyleTable*>(Table::Find(table));
    if (!styles || !name || count < 0 || count > kMostLines || (count && !lines)) return kNoId;
    if (!std::all_of(lines, lines + count, HasFiniteNumbers)) return kNoId;
    std::vector<PatternLine> made;
    std::transform(lines, lines + count, std::back_inserter(made), FromHost);
    return styles->Add(std::make_unique<BrushStyle>(name, std::move(made)));
}
