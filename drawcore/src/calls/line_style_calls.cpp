// The host's calls on line styles.

#include <algorithm>
#include <cmath>

#include "drawcore/include/drawcore/linestyle.h"
#include "drawcore/src/styles/line_style.h"
#include "orlo/host/style.h"

using namespace drawcore;

namespace {

constexpr int kShownItems = 8; // what a caller's buffer takes
constexpr int kMostItems = 64;

const LineStyle* FindStyle(TableStruct* table, uint16_t id) {
    const auto* styles = dynamic_cast<LineStyleTable*>(Table::Find(table));
    return styles ? styles->At(id) : nullptr;
}

int ShownItems(const LineStyle* style) {
    return style ? std::min(static_cast<int>(style->pattern.size()), kShownItems) : 0;
}

} // namespace

int LineStyleGetDLItems(TableStruct* table, uint16_t id) {
    return ShownItems(FindStyle(table, id));
}

int LineStyleGetPattern(TableStruct* table, uint16_t id, double* pattern) {
    const LineStyle* style = FindStyle(table, id);
    if (!style || !pattern) return 0;
    std::copy_n(style->pattern.begin(), ShownItems(style), pattern);
    return 1;
}

uint16_t LineStyleAdd(TableStruct* table, const char* name, const char* description, const double* pattern, int count) {
    auto* styles = dynamic_cast<LineStyleTable*>(Table::Find(table));
    if (!styles || !name || count < 0 || count > kMostItems || (count && !pattern)) return kNoId;
    std::vector<double> items(pattern, pattern + count);
    if (!std::all_of(items.begin(), items.end(), [](double item) { return std::isfinite(item); })) return kNoId;
    return styles->Add(std::make_unique<LineStyle>(name, description ? description : "", std::move(items)));
}
