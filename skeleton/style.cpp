// Layers, line styles and brush styles.

#include <algorithm>

#include "database.h"

namespace {

constexpr int kMaxDashes = 8;

const Entry* EntryOf(TableStruct* table, uint16_t id) {
    TableStruct* found = TableStruct::Find(table);
    return found ? found->At(id) : nullptr;
}

const Entry* LayerOf(DrawingStruct* drawing, uint16_t id) {
    return EntryOf(::DrawingGetTable(drawing, kTableLayers), id);
}

} // namespace

uint32_t LayerGetColor(DrawingStruct* drawing, uint16_t id) {
    const Entry* layer = LayerOf(drawing, id);
    return layer ? layer->color : kColorNone;
}

int LayerGetVisible(DrawingStruct* drawing, uint16_t id) {
    const Entry* layer = LayerOf(drawing, id);
    return layer && layer->visible;
}

int LayerGetReadOnly(DrawingStruct* drawing, uint16_t id) {
    const Entry* layer = LayerOf(drawing, id);
    return layer && layer->readOnly;
}

int LineStyleGetDLItems(TableStruct* table, uint16_t id) {
    const Entry* style = EntryOf(table, id);
    return style ? std::min(static_cast<int>(style->dashes.size()), kMaxDashes) : 0;
}

int LineStyleGetPattern(TableStruct* table, uint16_t id, double* pattern) {
    const Entry* style = EntryOf(table, id);
    if (!style || !pattern) return 0;
    std::copy_n(style->dashes.begin(), ::LineStyleGetDLItems(table, id), pattern);
    return 1;
}

uint16_t BrushStyleGetFlags(TableStruct* table, uint16_t id) {
    const Entry* style = EntryOf(table, id);
    return style ? style->brushFlags : uint16_t{0};
}

const BrushPatternStruct* BrushStyleGetFirstPattern(TableStruct* table, uint16_t id, int* cookie) {
    if (!cookie) return nullptr;
    *cookie = 0;
    return ::BrushStyleGetNextPattern(table, id, cookie);
}

const BrushPatternStruct* BrushStyleGetNextPattern(TableStruct* table, uint16_t id, int* cookie) {
    const Entry* style = EntryOf(table, id);
    if (!style || !cookie || *cookie < 0) return nullptr;
    const auto place = static_cast<size_t>(*cookie);
    if (place >= style->lines.size()) return nullptr;
    ++*cookie;
    return &style->lines[place];
}

void BrushPatternGetData(const BrushPatternStruct* lines, double* angle, double* baseX, double* baseY, double* along,
                         double* spacing, int* dashCount, double*) {
    if (!lines) return;
    *angle = lines->angle;
    *baseX = *baseY = *along = 0;
    *spacing = lines->spacing;
    *dashCount = 0;
}
