// Records the properties of graphics as text in the host's format, and compares two snapshots.
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "orlo/host/records.h"

// Number of graphics whose value changed from one to another.
struct PropertyChange {
    std::string property;
    std::string from;
    std::string to;
    int graphics;
};

// Number of graphics with a value.
struct ValueCount {
    std::string value;
    int count;
};

// Returns the values of a property (of its bits in the mask), the most frequent first. A color by layer includes the
// layer's color.
std::vector<ValueCount> CountValues(DrawingStruct* drawing, const std::vector<GraphicStruct*>& graphics,
                                    const char* property, uint32_t mask = ~uint32_t{0});
// Returns the name of a color, or its components: "255,128,0".
std::string ColorText(DrawingStruct* drawing, uint32_t color);
// Returns the name of a table entry, or "#12" if it has none.
std::string EntryName(DrawingStruct* drawing, const char* table, uint16_t id);

class PropertySnapshot {
public:
    PropertySnapshot(DrawingStruct* drawing, const std::vector<GraphicStruct*>& graphics);

    // Returns the changes to a later snapshot of the same graphics, sorted by property name, most frequent first.
    std::vector<PropertyChange> ChangesTo(const PropertySnapshot& later) const;

    // Returns the number of graphics for each value of a property.
    std::map<std::string, int> Values(const std::string& property) const;
    bool operator==(const PropertySnapshot& other) const { return m_values == other.m_values; }

private:
    using Values_ = std::map<std::string, std::string>; // property to value
    std::vector<Values_> m_values;                      // one per graphic
};
