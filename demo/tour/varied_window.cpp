// Finds an interesting part of a drawing: graphics around its center, until enough of them differ in appearance.

#include "demo/tour/varied_window.h"

#include <algorithm>
#include <cmath>
#include <set>
#include <string>
#include <vector>

#include "demo/viewer/document.h"
#include "demo/viewer/value_counts.h"
#include "orlo/host/graphic.h"

namespace {

constexpr size_t kDifferent = 4, kMax = 40; // number of appearances, and of graphics
constexpr double kLargest = 0.25;           // size of a graphic, as a fraction of the drawing

bool HasPenPage(GraphicStruct* graphic) {
    if (graphic->bType == kGraphicPenBrush) return true;
    return graphic->bType == kGraphicVertices && !::GraphicGetIsGroup(graphic) && !(graphic->dwFlags & kFlagNoPenBrush);
}

std::string Appearance(GraphicStruct* graphic) {
    std::string text;
    for (const char* property : {kPropPenColor, kPropPenWidth, kPropPenStyle, kPropLayer})
        text += PropertyText(graphic, property) + "|";
    return text;
}

} // namespace

std::optional<WorldBox> FindVariedWindow(const Document& document) {
    std::vector<GraphicStruct*> graphics = document.Selectable();
    const auto isUseless = [](GraphicStruct* graphic) { return !HasPenPage(graphic) || !ExtentsOf(graphic); };
    graphics.erase(std::remove_if(graphics.begin(), graphics.end(), isUseless), graphics.end());
    if (graphics.empty()) return std::nullopt;
    const WorldBox all = *document.Extents();
    // Large graphics such as frames come last.
    const auto distance = [&](GraphicStruct* graphic) {
        const WorldBox box = *ExtentsOf(graphic);
        const double size = std::max(box.Width(), box.Height()), whole = std::max(all.Width(), all.Height());
        const double fromCenter = std::hypot(box.Center().x - all.Center().x, box.Center().y - all.Center().y);
        return size > kLargest * whole ? fromCenter + whole : fromCenter;
    };
    std::sort(graphics.begin(), graphics.end(),
              [&](GraphicStruct* a, GraphicStruct* b) { return distance(a) < distance(b); });
    WorldBox window = *ExtentsOf(graphics[0]);
    std::set<std::string> appearances;
    for (size_t i = 0; i < std::min(graphics.size(), kMax) && appearances.size() < kDifferent; ++i) {
        window = WorldBox::Around(window, *ExtentsOf(graphics[i]));
        appearances.insert(Appearance(graphics[i]));
    }
    return window;
}
