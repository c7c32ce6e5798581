// Records the contents of a drawing, as far as the host's functions return them, for comparison with a later state:
// tables with their entries, blocks, graphics with their members, properties, vertices and extents. Numbers are kept in
// full precision, in brackets after their texts. The page that last wrote to a graphic is not included, because every
// sheet changes it.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "orlo/host/records.h"

// A number of graphics whose property changed from one value to another.
struct PropertyChange {
    std::string property;
    std::string from;
    std::string to;
    int graphics;
};

class DrawingState {
public:
    explicit DrawingState(DrawingStruct* drawing);
    // Records graphics only, with their members.
    explicit DrawingState(const std::vector<GraphicStruct*>& graphics);

    // Returns the first differences, one line each: object, value here, value there.
    std::vector<std::string> DifferencesTo(const DrawingState& later, size_t most) const;
    // Returns every value with its object, one line each.
    std::vector<std::string> Lines() const;
    // Returns whether a value with that name ("PenColor", "vertices") differs between two states of the same objects.
    bool Differs(const DrawingState& later, const std::string& name) const;

    // Returns the changes between two states of the same graphics, sorted by property, most graphics first.
    std::vector<PropertyChange> ChangesTo(const DrawingState& later) const;
    // Returns how many objects have each value with that name.
    std::map<std::string, int> Values(const std::string& name) const;
    bool operator==(const DrawingState& other) const { return Lines() == other.Lines(); }

private:
    // An object: a graphic by its position, or a table entry by its number.
    struct RecordedObject {
        std::string name;
        std::vector<std::pair<std::string, std::string>> values;
    };

    void AddTables(DrawingStruct* drawing);
    void AddEntry(TableStruct* table, const std::string& name, uint16_t id);
    void AddGraphics(const std::string& place, GraphicStruct* set);
    void AddGraphic(const std::string& place, GraphicStruct* graphic);

    std::vector<RecordedObject> m_things;
};
