// What graphics have as their properties, as texts in the host's own reading, and what changed between two moments.
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "orlo/host/records.h"

// So many graphics went from one value to another.
struct PropertyChange {
    std::string property;
    std::string from;
    std::string to;
    int graphics;
};

// So many graphics have a value.
struct ValueCount {
    std::string value;
    int count;
};

// The values that graphics have of a property (of its bits in the mask), those that occur most first. A color by layer
// is told with the layer's.
std::vector<ValueCount> CountValues(DrawingStruct* drawing, const std::vector<GraphicStruct*>& graphics,
                                    const char* property, uint32_t mask = ~uint32_t{0});
// The name of a color, or its parts: "255,128,0".
std::string ColorText(DrawingStruct* drawing, uint32_t color);
// The name of a table's entry; "#12" without one.
std::string EntryName(DrawingStruct* drawing, const char* table, uint16_t id);

class PropertySnapshot {
public:
    PropertySnapshot(DrawingStruct* drawing, const std::vector<GraphicStruct*>& graphics);

    // The snapshots are of the same graphics. In the order of the properties' names, most graphics first.
    std::vector<PropertyChange> ChangesTo(const PropertySnapshot& later) const;

    // How many of the graphics have each value of a property.
    std::map<std::string, int> Values(const std::string& property) const;
    bool operator==(const PropertySnapshot& other) const { return m_values == other.m_values; }

private:
    using Values_ = std::map<std::string, std::string>; // property to value
    std::vector<Values_> m_values;                      // of each graphic
};
