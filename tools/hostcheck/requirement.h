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

// Thrown by a check that is not possible because a function that may be a stub is one.
struct StubFound {
    const char* function;
};

// Throws Violation with a formatted text if the condition does not hold.
void Require(bool condition, const char* format, ...) __attribute__((format(gnu_printf, 2, 3)));
// If the condition does not hold, throws StubFound or, if the function must not be a stub, Violation.
void RequireNoStub(bool condition, const char* function);

// Collects the violations of one check, so that the first one does not hide the others.
class Violations {
public:
    template <class Part>
    void Collect(Part part) try {
        part();
    } catch (const Violation& violation) {
        texts_ += (texts_.empty() ? "" : "; ") + violation.found;
    }
    // Throws Violation if there are any.
    void Report() const {
        if (!texts_.empty()) throw Violation{texts_};
    }

private:
    std::string texts_;
};

// Smart pointer for an object that the database created.
template <class T>
using Owned = std::unique_ptr<T, void (*)(T*)>;

// The database under test and its current drawing. The functions throw Violation or StubFound if an object cannot be
// created.
class Subject {
public:
    // Without a drawing (null), only requirements that need none can be met.
    Subject(const Host& host, DrawingStruct* drawing);

    const Host& host;

    bool HasDrawing() const { return drawing_ != nullptr; }
    DrawingStruct* Drawing() const;
    TableStruct* Table(const char* name) const;
    TableStruct* Units() const { return Drawing()->pUnits; }

    Owned<GraphicStruct> NewGraphic(int type) const;
    Owned<VertexStruct> NewVertex(double x, double y, double z) const;
    // Creates a closed rectangle at the origin, attached to the drawing.
    Owned<GraphicStruct> NewRectangle(double width, double height) const;
    Owned<GraphicStruct> NewSquare(double size) const { return NewRectangle(size, size); }
    Owned<ViewportStruct> NewViewport() const;
    // Takes ownership of a result of the named function.
    Owned<MatrixStruct> Own(MatrixStruct* matrix, const char* function) const;

    std::vector<uint16_t> Entries(TableStruct* table) const;
    std::vector<GraphicStruct*> Members(GraphicStruct* set, uint32_t filter = kAllGraphics) const;
    std::vector<VertexStruct*> Vertices(GraphicStruct* graphic) const;

private:
    DrawingStruct* const drawing_;
};

struct Requirement {
    const char* function;
    const char* what; // continues the name of the function: "returns ..."
    void (*check)(const Subject&);
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
    kViewRequirements, kLeakRequirements;

// Returns all requirements by topic. The order is the same in all processes.
const std::vector<Requirement>& AllRequirements();

// A function of the contract, and what the sheet loses if it is a stub; null if it must not be one.
struct ContractFunction {
    const char* name;
    const char* lost;
};
// Returns all functions, sorted by name.
const std::vector<ContractFunction>& AllFunctions();
// Returns null for a function that must not be a stub.
const char* LostByStub(const std::string& function);
