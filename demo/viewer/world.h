// Points and boxes in drawing units; y points up.
#pragma once

#include <algorithm>

struct WorldPoint {
    double x = 0;
    double y = 0;
};

struct WorldBox {
    double x1 = 0; // left
    double y1 = 0; // bottom
    double x2 = 0; // right
    double y2 = 0; // top

    static WorldBox Between(WorldPoint a, WorldPoint b) {
        return {std::min(a.x, b.x), std::min(a.y, b.y), std::max(a.x, b.x), std::max(a.y, b.y)};
    }
    static WorldBox Around(const WorldBox& a, const WorldBox& b) {
        return {std::min(a.x1, b.x1), std::min(a.y1, b.y1), std::max(a.x2, b.x2), std::max(a.y2, b.y2)};
    }
    double Width() const { return x2 - x1; }
    double Height() const { return y2 - y1; }
    WorldPoint Center() const { return {(x1 + x2) / 2, (y1 + y2) / 2}; }
    bool Contains(const WorldBox& other) const {
        return x1 <= other.x1 && y1 <= other.y1 && other.x2 <= x2 && other.y2 <= y2;
    }
};
