// How graphics are alike and where they differ, in words, and which others are like them.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "demo/viewer/property_snapshot.h"
#include "orlo/host/records.h"

using Graphics = std::vector<GraphicStruct*>;

struct KindCount {
    uint32_t kind; // as GraphicGetKind gives it
    int count;
};

// The kinds that occur, in an order that is always the same.
std::vector<KindCount> CountKinds(const Graphics& graphics);
std::string KindText(const KindCount& kind); // "6 texts"
// "116: 6 texts, 80 lines, 30 curves"; of one kind only "80 lines"; empty for none.
std::string KindsText(const Graphics& graphics);
// "3 x 0.25 mm, 2 x 0.5 mm": the first ones, and how many others there are.
std::string CountsText(const std::vector<ValueCount>& counts);
// Of the pens' widths; empty if no graphic has a pen.
std::string WidthsText(DrawingStruct* drawing, const Graphics& graphics);

Graphics OfKind(const Graphics& graphics, uint32_t kind);
Graphics OnLayer(const Graphics& graphics, uint16_t layer);
// Those that share kind, layer and color with one of the examples.
Graphics LikeThese(const Graphics& graphics, const Graphics& examples);

struct LayerCount {
    uint16_t layer;
    std::string name;
    int count;
};
// The layers that graphics are on, in the order of their names.
std::vector<LayerCount> CountLayers(DrawingStruct* drawing, const Graphics& graphics);
// All layers, with the number of all graphics on each, in the order of their names.
std::vector<LayerCount> AllLayers(DrawingStruct* drawing);
