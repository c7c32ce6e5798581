// Line styles as a StyleControl shows them.

#include "orlo/controls/line_styles.h"

#include <algorithm>
#include <cstring>
#include <iterator>

#include "orlo/controls/item_drawing.h"
#include "orlo/controls/paint.h"
#include "orlo/host/graphic.h"
#include "orlo/host/strings.h"
#include "orlo/host/style.h"
#include "orlo/samples/vertex_list.h"

namespace {

constexpr double kGapsAcross = 15.0;      // width of the sample in multiples of the style's first gap
constexpr double kLengthWithoutGap = 2.5; // length used for a style without gaps
constexpr double kNoLength = 1e-7;

// Where a name is drawn, from the corner of the item.
constexpr POINT kComboTextAt = {4, 1}, kListTextAt = {6, 4};

// Returns at least 1, so that no sample degenerates to a point, however narrow the control.
double SampleUnits(int controlWidth, int factor, int reference) {
    return std::max(controlWidth * factor / reference, 1);
}

SampleGraphic InWorldScale(SampleGraphic graphic) {
    if (graphic) ::GraphicSetScaleSystem(graphic.get(), kScaleWorld);
    return graphic;
}

// Returns kGapsAcross times the first gap of the dash list.
double PatternLength(TableStruct* table, uint16_t style, int items) {
    double pattern[64]; // a style with a longer list is scaled as if it had no gaps
    if (items > static_cast<int>(std::size(pattern))) return kLengthWithoutGap;
    std::fill(std::begin(pattern), std::end(pattern), 0.0);
    ::LineStyleGetPattern(table, style, pattern);
    for (int i = 0; i < items; ++i) {
        const double length = pattern[i] < 0.0 ? -pattern[i] * kGapsAcross : 0.0;
        if (length > kNoLength) return length;
    }
    return kLengthWithoutGap;
}

// Returns the dash scale at which the first gap of the style is a fifteenth of the sample's width, or 1.0 for a solid
// style.
double LineSampleScale(TableStruct* table, unsigned int style, double sampleWidth) {
    const uint16_t id = static_cast<uint16_t>(style);
    const int items = ::LineStyleGetDLItems(table, id);
    return items > 1 ? sampleWidth / PatternLength(table, id, items) : 1.0;
}

SampleGraphic MakeComboSample(int controlWidth) {
    const double w = SampleUnits(controlWidth, 16, 320);
    return InWorldScale(NewSample({{0.01 * w, 0.5, 0, false}, {0.99 * w, 0.5, 0, true}}));
}

// The outer vertices have undrawn segments that extend the sample.
SampleGraphic MakeListSample(int controlWidth) {
    const double w = SampleUnits(controlWidth, 6, 136);
    return InWorldScale(
        NewSample({{0.0, 0.0, 0, true}, {0.01 * w, 0.5, 0, false}, {0.99 * w, 0.5, 0, true}, {w, 1.0, 0, false}}));
}

// Construction styles are not offered.
bool IsListedStyle(const char* name) {
    return std::strcmp(name, "$CONSTRUCTION") != 0 && std::strcmp(name, "$AUXILIARY") != 0;
}

void DrawStyledSample(const DRAWITEMSTRUCT& request, const StyleItem& item, const RECT& cell) {
    ::GraphicSetPenColor(item.graphic, SampleColorsOf(request).text);
    ::GraphicSetPenStyle(item.graphic, static_cast<uint16_t>(item.style));
    ::GraphicSetPenScale(item.graphic, LineSampleScale(item.table, item.style, SampleWidth(item.graphic)));
    DrawSample(item.graphic, item.viewport, request.hDC, cell);
}

void LoadSpecialName(unsigned int style, char* name, int size) {
    ::DrawCoreLoadString(style == kLineStyleByLayer ? kStringByLayer : kStringByBlock, name, size);
}

} // namespace

const LineStyles kComboLineStyles(LineStyles::In::Combo), kListLineStyles(LineStyles::In::List);

ItemText DefaultLineItem() {
    return HostTextItem(kLineStyleByLayer, kStringByLayer);
}

SampleGraphic LineStyles::MakeSample(int controlWidth) const {
    return m_inList ? MakeListSample(controlWidth) : MakeComboSample(controlWidth);
}

void LineStyles::ForEachItem(TableStruct* table, const std::function<void(const char*)>& add) const {
    ForEachTableItem(table, [&](ItemText& text) {
        if (IsListedStyle(text.name())) add(text.c_str());
    });
    if (m_inList) add(DefaultLineItem().c_str());
}

bool LineStyles::DrawStyle(const DRAWITEMSTRUCT& request, const StyleItem& item) const {
    ClearItem(request);
    if (item.style == kLineStyleNone || item.style >= kLineStyleIndeterminate) return true;

    const RECT cell = Inflated(request.rcItem, -2);
    const bool special = item.style == kLineStyleByLayer || item.style == kLineStyleByBlock;
    if (!special && !item.table) return false;
    if (!special && item.graphic && item.viewport) {
        DrawStyledSample(request, item, cell);
        return true;
    }
    char name[kItemTextSize];
    ::lstrcpynA(name, item.name, sizeof name);
    if (special && !*name) LoadSpecialName(item.style, name, kHostTextSize);
    const POINT offset = m_inList ? kListTextAt : kComboTextAt;
    const POINT at = {request.rcItem.left + offset.x, request.rcItem.top + offset.y};
    if (*name) DrawFramedName(request, m_inList ? cell : request.rcItem, at, name);
    return true;
}
