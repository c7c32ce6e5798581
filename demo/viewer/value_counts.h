// Values of properties as texts, and how many graphics have each.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "orlo/host/records.h"

// Returns the value of a property as text; "-" if the graphic has no such property.
std::string PropertyText(GraphicStruct* graphic, const char* property);
// Returns a whole number as the value of a property: the name of a color or of a layer.
std::string ValueText(DrawingStruct* drawing, const char* property, uint32_t value);

// So many graphics have a value.
struct ValueCount {
    std::string value;
    int count;
};

// The values that graphics have of a property (of its bits in the mask), those that occur most first. A color by layer
// is told with the layer's.
std::vector<ValueCount> CountValues(DrawingStruct* drawing, const std::vector<GraphicStruct*>& graphics,
                                    const char* property, uint32_t mask = ~uint32_t{0});
