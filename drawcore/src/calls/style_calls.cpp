// Functions of the host contract and of drawcore/include for line styles and brush styles.

#include <algorithm>
#include <cmath>

#include "drawcore/include/drawcore/brushstyle.h"
#include "drawcore/include/drawcore/linestyle.h"
#include "drawcore/src/styles/brush_style.h"
#include "drawcore/src/styles/line_style.h"
#include "orlo/host/style.h"

using namespace drawcore;

namespace {

template <class Styles>
auto FindStyle(TableStruct* table, uint16_t id) {
    auto* styles = dynamic_cast<Styles*>(Table::Find(table));
    return styles ? styles->At(id) : nullptr;
}

constexpr size_t kShownDashes = 8; // size of a caller's buffer
constexpr int kMaxLines = 256;

// Returns the line at that index and sets the cookie after it.
const BrushPatternStruct* LineAt(TableStruct* table, uint16_t id, int index, int* cookie) {
    const BrushStyle* style = FindStyle<BrushStyleTable>(table, id);
    if (!style || !cookie || index < 0 || static_cast<size_t>(index) >= style->lines.size()) return nullptr;
    *cookie = index + 1;
    return &style->lines[index];
}

bool HasFiniteNumbers(const BrushLine& line) {
    const auto finite = [](double item) { return std::isfinite(item); };
    return finite(line.angle) && finite(line.baseX) && finite(line.baseY) && finite(line.along) &&
           std::fabs(line.spacing) > 0 && finite(line.spacing) && line.dashCount >= 0 &&
           line.dashCount <= static_cast<int>(kShownDashes) &&
           std::all_of(line.dashes, line.dashes + line.dashCount, finite);
}

// Converts the offset of the lines, given along and across them.
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
    const BrushStyle* style = FindStyle<BrushStyleTable>(table, id);
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
    if (!styles || !name || count < 0 || count > kMaxLines || (count && !lines)) return kNoId;
    if (!std::all_of(lines, lines + count, HasFiniteNumbers)) return kNoId;
    std::vector<PatternLine> patternLines;
    std::transform(lines, lines + count, std::back_inserter(patternLines), FromHost);
    return styles->Add(std::make_unique<BrushStyle>(name, std::move(patternLines)));
}

namespace {

constexpr int kShownItems = 8; // size of a caller's buffer
constexpr int kMaxItems = 64;

int ShownItems(const LineStyle* style) {
    return style ? std::min(static_cast<int>(style->pattern.size()), kShownItems) : 0;
}

} // namespace

int LineStyleGetDLItems(TableStruct* table, uint16_t id) {
    return ShownItems(FindStyle<LineStyleTable>(table, id));
}

int LineStyleGetPattern(TableStruct* table, uint16_t id, double* pattern) {
    const LineStyle* style = FindStyle<LineStyleTable>(table, id);
    if (!style || !pattern) return 0;
    std::copy_n(style->pattern.begin(), ShownItems(style), pattern);
    return 1;
}

uint16_t LineStyleAdd(TableStruct* table, const char* name, const char* description, const double* pattern, int count) {
    auto* styles = dynamic_cast<LineStyleTable*>(Table::Find(table));
    if (!styles || !name || count < 0 || count > kMaxItems || (count && !pattern)) return kNoId;
    std::vector<double> items(pattern, pattern + count);
    if (!std::all_of(items.begin(), items.end(), [](double item) { return std::isfinite(item); })) return kNoId;
    return styles->Add(std::make_unique<LineStyle>(name, description ? description : "", std::move(items)));
}
