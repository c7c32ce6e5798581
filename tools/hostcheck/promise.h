// A promise of the contract: whose it is, what it says, and how it is checked.
//
//   void GivesWhatItGot(const Subject& subject) { Expect(found == 3, "found %d entries", found); }
//   constexpr Promise kRows[] = {{"TableEntryNext", "gives three entries", GivesWhatItGot}};
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "host.h"

// Thrown by a check: the promise is not kept.
struct Broken {
    std::string found;
};

// Throws Broken with what was found.
void Expect(bool kept, const char* format, ...) __attribute__((format(gnu_printf, 2, 3)));

// What a database has made, given back to it.
template <class T>
using Made = std::unique_ptr<T, void (*)(T*)>;

// The database that is looked at, with a drawing of it that is current.
class Subject {
public:
    Subject(const Host& host, DrawingStruct* drawing);

    const Host& host;
    DrawingStruct* const drawing;

    TableStruct* Table(const char* name) const; // throws Broken if there is none
    TableStruct* Units() const { return drawing->pUnits; }

    // Throw Broken for null.
    Made<GraphicStruct> NewGraphic(int type) const;
    Made<VertexStruct> NewVertex(double x, double y, double z) const;
    // A closed square of that size at the origin, tied to the drawing.
    Made<GraphicStruct> NewSquare(double size) const;
    Made<ViewportStruct> NewViewport() const;
    Made<MatrixStruct> Own(MatrixStruct* matrix) const;

    std::vector<uint16_t> Entries(TableStruct* table) const;
    std::vector<GraphicStruct*> Members(GraphicStruct* set, uint32_t filter = kAllGraphics) const;
    std::vector<VertexStruct*> Vertices(GraphicStruct* graphic) const;
};

struct Promise {
    const char* function;
    const char* what;
    void (*check)(const Subject&);
};

// One topic's promises.
struct Topic {
    const Promise* rows;
    size_t count;
};
template <size_t count>
constexpr Topic TopicOf(const Promise (&rows)[count]) {
    return {rows, count};
}

extern const Topic kApplicationPromises, kTablePromises, kUnitPromises, kGraphicPromises, kPropertyPromises,
    kVertexPromises, kMatrixPromises, kBlockPromises, kStylePromises, kViewPromises;

// All of them: that every function is there first, then topic by topic. The order is the same in each process.
const std::vector<Promise>& AllPromises();
