// A requirement of the contract: the function that it applies to, a description, and a check.
//
//   void ReturnsAllEntries(const Subject& subject) { Require(found == 3, "found %d entries", found); }
//   constexpr Requirement kRows[] = {{"TableEntryNext", "returns three entries", ReturnsAllEntries}};
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "host.h"

// Thrown by a check if the requirement is not met.
struct Violation {
    std::string found; // what was found instead
};

// Throws Violation with a formatted text if the condition does not hold.
void Require(bool condition, const char* format, ...) __attribute__((format(gnu_printf, 2, 3)));

// Smart pointer for an object that the database created.
template <class T>
using Owned = std::unique_ptr<T, void (*)(T*)>;

// The database under test and its current drawing. The functions throw Violation if an object cannot be created.
class Subject {
public:
    Subject(const Host& host, DrawingStruct* drawing);

    const Host& host;
    DrawingStruct* const drawing;

    TableStruct* Table(const char* name) const;
    TableStruct* Units() const { return drawing->pUnits; }

    Owned<GraphicStruct> NewGraphic(int type) const;
    Owned<VertexStruct> NewVertex(double x, double y, double z) const;
    // Creates a closed square of that size at the origin, attached to the drawing.
    Owned<GraphicStruct> NewSquare(double size) const;
    Owned<ViewportStruct> NewViewport() const;
    // Takes ownership. Throws Violation if the matrix is null.
    Owned<MatrixStruct> Own(MatrixStruct* matrix) const;

    std::vector<uint16_t> Entries(TableStruct* table) const;
    std::vector<GraphicStruct*> Members(GraphicStruct* set, uint32_t filter = kAllGraphics) const;
    std::vector<VertexStruct*> Vertices(GraphicStruct* graphic) const;
};

struct Requirement {
    const char* function;
    const char* what;              // continues the name of the function: "returns ..."
    void (*check)(const Subject&); // throws Violation; null if it is enough that the function is exported
};

// The requirements of one topic.
struct Topic {
    const Requirement* rows;
    size_t count;
};
template <size_t count>
constexpr Topic TopicOf(const Requirement (&rows)[count]) {
    return {rows, count};
}

extern const Topic kApplicationRequirements, kTableRequirements, kUnitRequirements, kGraphicRequirements,
    kPropertyRequirements, kVertexRequirements, kMatrixRequirements, kBlockRequirements, kStyleRequirements,
    kViewRequirements;

// Returns all requirements: first that every function is exported, then by topic. The order is the same in all
// processes.
const std::vector<Requirement>& AllRequirements();
