// Summarizes the selected graphics in text, and finds similar ones.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "demo/viewer/value_counts.h"
#include "orlo/host/records.h"

using Graphics = std::vector<GraphicStruct*>;

struct KindCount {
    uint32_t kind; // as returned by GraphicGetKind
    int count;
};

// Returns the kinds of the graphics in a fixed order.
std::vector<KindCount> CountKinds(const Graphics& graphics);
std::string KindText(const KindCount& kind); // Returns for example "6 texts".
// Returns for example "116: 6 texts, 80 lines, 30 curves"; "80 lines" for a single kind; an empty string for none.
std::string KindsText(const Graphics& graphics);
// Returns for example "3 x 0.25 mm, 2 x 0.5 mm and 4 more": the first values, and the number of others.
std::string CountsText(const std::vector<ValueCount>& counts, size_t mostValues = 3);

Graphics OfKind(const Graphics& graphics, uint32_t kind);
Graphics OnLayer(const Graphics& graphics, uint16_t layer);
// Returns the graphics that have the same kind, layer and color as one of the examples.
Graphics SimilarGraphics(const Graphics& graphics, const Graphics& examples);

struct LayerCount {
    uint16_t layer;
    std::string name;
    int count;
};
// Returns the layers of the graphics, sorted by name.
std::vector<LayerCount> CountLayers(DrawingStruct* drawing, const Graphics& graphics);
// Returns all layers with the number of graphics on each, sorted by name.
std::vector<LayerCount> AllLayers(DrawingStruct* drawing);
