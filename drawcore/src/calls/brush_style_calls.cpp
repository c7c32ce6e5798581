// The host's calls on brush styles.

#include <algorithm>
#include <cmath>

#include "drawcore/include/drawcore/brushstyle.h"
#include "drawcore/src/styles/brush_style.h"
#include "orlo/host/style.h"

using namespace drawcore;

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
