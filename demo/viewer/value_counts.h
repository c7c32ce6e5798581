// Values of properties as text, and the number of graphics that have each.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "orlo/host/records.h"

// Returns the value of a property as text; "-" if the graphic has no such property.
std::string PropertyText(GraphicStruct* graphic, const char* property);
// Returns an integer as the value of a property: the name of a color or of a layer.
std::string ValueText(DrawingStruct* drawing, const char* property, uint32_t value);

// Returns the layer of a graphic; 0 if it has none.
uint16_t LayerOf(GraphicStruct* graphic);

// A value and the number of graphics that have it.
struct ValueCount {
    std::string value;
    int count;
};

// Returns the values of a property (only its bits in the mask) and their numbers of graphics, most frequent first. A
// color by layer includes the layer's color.
std::vector<ValueCount> CountValues(DrawingStruct* drawing, const std::vector<GraphicStruct*>& graphics,
                                    const char* property, uint32_t mask = ~uint32_t{0});
