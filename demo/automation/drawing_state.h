// Everything that a drawing holds, as far as the host's functions give it, to be compared with what it holds later:
// tables with their entries, blocks, graphics with their parts, properties, vertices and boxes. Numbers are kept to the
// last digit. Not in it: which page of a sheet has written a graphic last, a note of the library that every sheet
// leaves.
#pragma once

#include <string>
#include <vector>

#include "orlo/host/records.h"

class DrawingState {
public:
    explicit DrawingState(DrawingStruct* drawing);

    // What is not the same in both, a line each: the thing, the value here, the value there; the first ones only.
    std::vector<std::string> DifferencesTo(const DrawingState& later, size_t most) const;
    // Every value with the thing that has it, a line each.
    std::vector<std::string> Lines() const;
    // Whether a value of that name ("PenColor", "vertices") differs between two states of the same things.
    bool Differs(const DrawingState& later, const std::string& name) const;

private:
    // One thing: a graphic by its place, an entry of a table by its number.
    struct Thing {
        std::string name;
        std::vector<std::pair<std::string, std::string>> values;
    };

    void AddTables(DrawingStruct* drawing);
    void AddEntry(TableStruct* table, const std::string& name, uint16_t id);
    void AddGraphics(const std::string& place, GraphicStruct* set);
    void AddGraphic(const std::string& place, GraphicStruct* graphic);

    std::vector<Thing> m_things;
};
