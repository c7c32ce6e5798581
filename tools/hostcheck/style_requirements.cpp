// Requirements of layers, line styles and brush styles.

#include <algorithm>
#include <cmath>

#include "requirement.h"

namespace {

constexpr uint16_t kNoEntry = 0xFFF0;
constexpr int kMaxDashes = 8;

void LayersHaveColors(const Subject& s) {
    bool isStub = true;
    for (const uint16_t id : s.Entries(s.Table(kTableLayers))) {
        const uint32_t color = CALL(s.host, LayerGetColor)(s.Drawing(), id);
        isStub = isStub && color == kColorNone;
        Require(color <= 0xFFFFFF || isStub, "layer %u has the color 0x%X, which is not a COLORREF", id, color);
    }
    RequireNoStub(!isStub, "LayerGetColor");
    const uint32_t none = CALL(s.host, LayerGetColor)(s.Drawing(), kNoEntry);
    Require(none == kColorNone, "returned 0x%X instead of kColorNone for a layer that does not exist", none);
}

void LayersHaveStates(const Subject& s) {
    bool visible = false;
    for (const uint16_t id : s.Entries(s.Table(kTableLayers))) {
        visible = visible || CALL(s.host, LayerGetVisible)(s.Drawing(), id);
        CALL(s.host, LayerGetReadOnly)(s.Drawing(), id);
    }
    RequireNoStub(visible, "LayerGetVisible");
    Require(!CALL(s.host, LayerGetVisible)(s.Drawing(), kNoEntry), "a layer that does not exist is visible");
}

void CopiesAllItems(const Subject& s) {
    TableStruct* styles = s.Table(kTableLineStyles);
    const auto ids = s.Entries(styles);
    RequireNoStub(ids.empty() || std::any_of(ids.begin(), ids.end(),
                                             [&](uint16_t id) {
                                                 double pattern[kMaxDashes];
                                                 return CALL(s.host, LineStyleGetPattern)(styles, id, pattern) != 0;
                                             }),
                  "LineStyleGetPattern");
    for (const uint16_t id : ids) {
        const int items = CALL(s.host, LineStyleGetDLItems)(styles, id);
        Require(items >= 0 && items <= kMaxDashes, "line style %u has %d items; the maximum is 8", id, items);
        double pattern[kMaxDashes + 1];
        for (double& item : pattern)
            item = HUGE_VAL;
        Require(CALL(s.host, LineStyleGetPattern)(styles, id, pattern), "line style %u has no pattern", id);
        for (int i = 0; i <= kMaxDashes; ++i)
            Require(std::isfinite(pattern[i]) == (i < items), "line style %u has %d items, but item %d is %g", id,
                    items, i, pattern[i]);
    }
}

void UnknownStylesHaveNoDashes(const Subject& s) {
    double pattern[kMaxDashes] = {77};
    TableStruct* styles = s.Table(kTableLineStyles);
    Require(!CALL(s.host, LineStyleGetDLItems)(styles, kNoEntry), "a style that does not exist has dashes");
    Require(!CALL(s.host, LineStyleGetPattern)(styles, kNoEntry, pattern) && pattern[0] == 77,
            "a style that does not exist has a pattern");
}

void UnknownStylesHaveNoFlags(const Subject& s) {
    const unsigned flags = CALL(s.host, BrushStyleGetFlags)(s.Table(kTableBrushStyles), kNoEntry);
    Require(flags == 0, "a style that does not exist has the flags %u", flags);
}

void HatchesHaveLines(const Subject& s) {
    TableStruct* styles = s.Table(kTableBrushStyles);
    constexpr uint16_t kHatch = kBrushVector | kBrushHasLines;
    int hatches = 0, drawn = 0;
    for (const uint16_t id : s.Entries(styles)) {
        if ((CALL(s.host, BrushStyleGetFlags)(styles, id) & kHatch) != kHatch) continue;
        int cookie = 0, families = 0;
        for (auto* lines = CALL(s.host, BrushStyleGetFirstPattern)(styles, id, &cookie); lines;
             lines = CALL(s.host, BrushStyleGetNextPattern)(styles, id, &cookie)) {
            double angle = HUGE_VAL, x = HUGE_VAL, y = HUGE_VAL, along = HUGE_VAL, spacing = HUGE_VAL,
                   dashes[kMaxDashes];
            int dashCount = -1;
            CALL(s.host, BrushPatternGetData)(lines, &angle, &x, &y, &along, &spacing, &dashCount, dashes);
            Require(std::isfinite(angle + x + y + along + spacing), "brush style %u, family %d: a value was not stored",
                    id, families);
            Require(spacing != 0, "brush style %u, family %d: the spacing of the lines is 0", id, families);
            Require(dashCount >= 0 && dashCount <= kMaxDashes, "brush style %u, family %d: %d dashes", id, families,
                    dashCount);
            Require(++families < 10000, "brush style %u: the iteration does not end", id);
        }
        ++hatches;
        drawn += families > 0;
    }
    RequireNoStub(hatches == 0 || drawn > 0, "BrushStyleGetFirstPattern");
    Require(drawn == hatches, "%d of %d brush styles with the flag kBrushHasLines have no lines", hatches - drawn,
            hatches);
}

constexpr Requirement kRows[] = {
    {"LayerGetColor", "returns a COLORREF for each layer, kColorNone for others", LayersHaveColors},
    {"LayerGetVisible", "and LayerGetReadOnly accept each layer; at least one is visible", LayersHaveStates},
    {"LineStyleGetPattern", "copies as many items as LineStyleGetDLItems returns, at most 8", CopiesAllItems},
    {"LineStyleGetDLItems", "and LineStyleGetPattern return 0 for a style that does not exist",
     UnknownStylesHaveNoDashes},
    {"BrushStyleGetFlags", "returns 0 for a style that does not exist", UnknownStylesHaveNoFlags},
    {"BrushStyleGetFirstPattern", "returns the lines of a hatch; BrushPatternGetData stores all values",
     HatchesHaveLines},
};

} // namespace

const Topic kStyleRequirements = TopicOf(kRows);
