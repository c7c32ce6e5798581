// Layers, line styles and brush styles.

#include <cmath>

#include "promise.h"

namespace {

constexpr uint16_t kNoEntry = 0xFFF0;
constexpr int kMostDashes = 8;

void LayersHaveColors(const Subject& s) {
    for (const uint16_t id : s.Entries(s.Table(kTableLayers))) {
        const uint32_t color = CALL(s.host, LayerGetColor)(s.drawing, id);
        Expect(color <= 0xFFFFFF, "layer %u has colour 0x%X, no COLORREF", id, color);
    }
    const uint32_t none = CALL(s.host, LayerGetColor)(s.drawing, kNoEntry);
    Expect(none == kColorNone, "a layer that is not there has colour 0x%X, not kColorNone", none);
}

void LayersSayWhatTheyAre(const Subject& s) {
    bool visible = false;
    for (const uint16_t id : s.Entries(s.Table(kTableLayers))) {
        visible = visible || CALL(s.host, LayerGetVisible)(s.drawing, id);
        CALL(s.host, LayerGetReadOnly)(s.drawing, id);
    }
    Expect(visible, "no layer is visible");
    Expect(!CALL(s.host, LayerGetVisible)(s.drawing, kNoEntry), "a layer that is not there is visible");
}

void GivesAsManyDashesAsItSays(const Subject& s) {
    TableStruct* styles = s.Table(kTableLineStyles);
    for (const uint16_t id : s.Entries(styles)) {
        const int items = CALL(s.host, LineStyleGetDLItems)(styles, id);
        Expect(items >= 0 && items <= kMostDashes, "line style %u has %d items: at most 8", id, items);
        double pattern[kMostDashes + 1];
        for (double& item : pattern)
            item = HUGE_VAL;
        Expect(CALL(s.host, LineStyleGetPattern)(styles, id, pattern), "line style %u has no pattern", id);
        for (int i = 0; i <= kMostDashes; ++i)
            Expect(std::isfinite(pattern[i]) == (i < items), "line style %u has %d items, and item %d is %g",
                   id, items, i, pattern[i]);
    }
}

void HasNoDashesOfNoStyle(const Subject& s) {
    double pattern[kMostDashes] = {77};
    TableStruct* styles = s.Table(kTableLineStyles);
    Expect(!CALL(s.host, LineStyleGetDLItems)(styles, kNoEntry), "a style that is not there has dashes");
    Expect(!CALL(s.host, LineStyleGetPattern)(styles, kNoEntry, pattern) && pattern[0] == 77,
           "a style that is not there has a pattern");
}

void HasNoFlagsOfNoStyle(const Subject& s) {
    const unsigned flags = CALL(s.host, BrushStyleGetFlags)(s.Table(kTableBrushStyles), kNoEntry);
    Expect(flags == 0, "a style that is not there has flags %u", flags);
}

void HatchesHaveLines(const Subject& s) {
    TableStruct* styles = s.Table(kTableBrushStyles);
    constexpr uint16_t kHatch = kBrushVector | kBrushHasLines;
    for (const uint16_t id : s.Entries(styles)) {
        if ((CALL(s.host, BrushStyleGetFlags)(styles, id) & kHatch) != kHatch) continue;
        int cookie = 0, families = 0;
        for (auto* lines = CALL(s.host, BrushStyleGetFirstPattern)(styles, id, &cookie); lines;
             lines = CALL(s.host, BrushStyleGetNextPattern)(styles, id, &cookie)) {
            double angle = HUGE_VAL, x = HUGE_VAL, y = HUGE_VAL, along = HUGE_VAL, spacing = HUGE_VAL,
                   dashes[kMostDashes];
            int dashCount = -1;
            CALL(s.host, BrushPatternGetData)(lines, &angle, &x, &y, &along, &spacing, &dashCount, dashes);
            Expect(std::isfinite(angle + x + y + along + spacing),
                   "brush style %u, family %d: a number is missing", id, families);
            Expect(spacing != 0, "brush style %u, family %d: its lines have no distance", id, families);
            Expect(dashCount >= 0 && dashCount <= kMostDashes, "brush style %u, family %d: %d dashes", id,
                   families, dashCount);
            Expect(++families < 10000, "brush style %u: the walk has no end", id);
        }
        Expect(families > 0, "brush style %u has kBrushHasLines and no lines", id);
    }
}

constexpr Promise kRows[] = {
    {"LayerGetColor", "gives a COLORREF for each layer, and kColorNone for none", LayersHaveColors},
    {"LayerGetVisible", "and LayerGetReadOnly know each layer, and one is visible", LayersSayWhatTheyAre},
    {"LineStyleGetPattern", "gives as many items as LineStyleGetDLItems says, at most 8",
     GivesAsManyDashesAsItSays},
    {"LineStyleGetDLItems", "and LineStyleGetPattern give 0 for a style that is not there",
     HasNoDashesOfNoStyle},
    {"BrushStyleGetFlags", "gives 0 for a style that is not there", HasNoFlagsOfNoStyle},
    {"BrushStyleGetFirstPattern", "gives the lines of a hatch, and BrushPatternGetData all their numbers",
     HatchesHaveLines},
};

} // namespace

const Topic kStylePromises = TopicOf(kRows);
