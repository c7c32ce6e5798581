// Finds an interesting part of a drawing.
//
// The drawing is divided into square cells of several sizes, each grid again shifted by half a cell. A graphic counts
// for a cell that contains it completely. Of the cells with few enough graphics to be distinguishable, the one with the
// most different appearances is used, then the largest.

#include "demo/tour/varied_window.h"

#include <cmath>
#include <cstdint>
#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "demo/viewer/document.h"
#include "demo/viewer/value_counts.h"
#include "orlo/host/graphic.h"

namespace {

constexpr int kCuts[] = {2, 3, 4, 6, 8, 12, 16, 24, 32, 48, 64}; // number of cells along the longer side of the drawing
constexpr int kFewest = 2, kMost = 40;                           // number of graphics in a cell

struct Item {
    WorldBox box;
    std::string look;
};

struct Cell {
    WorldBox box; // extents of the contents
    int graphics = 0;
    std::set<std::string> looks;
};

bool HasPenPage(GraphicStruct* graphic) {
    if (graphic->bType == kGraphicPenBrush) return true;
    return graphic->bType == kGraphicVertices && !::GraphicGetIsGroup(graphic) && !(graphic->dwFlags & kFlagNoPenBrush);
}

std::vector<Item> ItemsOf(const Document& document) {
    std::vector<Item> items;
    for (GraphicStruct* graphic : document.Selectable()) {
        const std::optional<WorldBox> box = ExtentsOf(graphic);
        if (!box || !HasPenPage(graphic)) continue;
        std::string look = std::to_string(graphic->bType);
        for (const char* property : {kPropPenColor, kPropPenWidth, kPropPenStyle, kPropLayer})
            look += "|" + PropertyText(graphic, property);
        items.push_back({*box, std::move(look)});
    }
    return items;
}

using Cells = std::map<std::pair<int, int>, Cell>;

Cells Fill(const std::vector<Item>& items, const WorldBox& grid, double size) {
    Cells cells;
    for (const Item& item : items) {
        const auto column = std::floor((item.box.x1 - grid.x1) / size),
                   row = std::floor((item.box.y1 - grid.y1) / size);
        if (column != std::floor((item.box.x2 - grid.x1) / size)) continue;
        if (row != std::floor((item.box.y2 - grid.y1) / size)) continue;
        Cell& cell = cells[{static_cast<int>(column), static_cast<int>(row)}];
        cell.box = cell.graphics++ ? WorldBox::Around(cell.box, item.box) : item.box;
        cell.looks.insert(item.look);
    }
    return cells;
}

} // namespace

std::optional<WorldBox> FindVariedWindow(const Document& document) {
    const std::vector<Item> items = ItemsOf(document);
    if (items.empty()) return std::nullopt;
    WorldBox all = items.front().box;
    for (const Item& item : items)
        all = WorldBox::Around(all, item.box);
    const double side = std::max(all.Width(), all.Height());
    if (static_cast<int>(items.size()) <= kMost || side <= 0) return all;

    std::optional<WorldBox> best;
    size_t mostLooks = 0;
    for (const int cut : kCuts) {
        const double size = side / cut;
        for (const double shift : {0.0, size / 2}) {
            const WorldBox grid = {all.x1 - shift, all.y1 - shift, all.x2, all.y2};
            for (const auto& [place, cell] : Fill(items, grid, size)) {
                if (cell.graphics < kFewest || cell.graphics > kMost || cell.looks.size() <= mostLooks) continue;
                mostLooks = cell.looks.size();
                best = cell.box;
            }
        }
    }
    return best ? best : all;
}
