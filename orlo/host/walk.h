// The host's iterations as C++ ranges. C++ only.
//
//   for (GraphicStruct* graphic : orlo::host::Members(set)) ...
//   for (VertexStruct* vertex : orlo::host::Vertices(graphic)) ...
//   for (uint16_t id : orlo::host::Entries(table)) ...
//
// A null pointer is an empty range. Members, vertices and entries must not be added or removed during the iteration.
#pragma once

#include <utility>

#include "orlo/host/graphic.h"
#include "orlo/host/table.h"
#include "orlo/host/vertex.h"

namespace orlo::host {

// A range over First() and Next() of Step, which return a value that converts to false at the end.
template <class Step>
class Walk {
public:
    using Value = decltype(std::declval<Step&>().First());

    class Iterator {
    public:
        Iterator() = default; // the end
        explicit Iterator(const Step& step) : step_(step), value_(step_.First()) {}

        Value operator*() const { return value_; }
        Iterator& operator++() {
            value_ = step_.Next();
            return *this;
        }
        // Valid for a comparison with end() only.
        bool operator!=(const Iterator& end) const { return value_ != end.value_; }

    private:
        Step step_{};
        Value value_{};
    };

    explicit Walk(const Step& step) : step_(step) {}
    Iterator begin() const { return Iterator(step_); }
    Iterator end() const { return {}; }

private:
    Step step_;
};

struct MemberStep {
    GraphicStruct* set;
    uint32_t filter;
    uint32_t position;

    GraphicStruct* First() { return set ? ::GraphicFirst(set, &position, 1, filter) : nullptr; }
    GraphicStruct* Next() { return ::GraphicNext(set, &position, 1, filter); }
};

struct VertexStep {
    GraphicStruct* graphic;
    int cookie;

    VertexStruct* First() { return graphic ? ::GraphicVertexFirst(graphic, &cookie, 0, 0xFFFF) : nullptr; }
    VertexStruct* Next() { return ::GraphicVertexNext(graphic, &cookie, 0, 0xFFFF); }
};

struct EntryStep {
    TableStruct* table;
    int cookie;

    uint16_t First() { return table ? ::TableEntryFirst(table, &cookie) : uint16_t{0}; }
    uint16_t Next() { return ::TableEntryNext(table, &cookie); }
};

// Returns the members of a set (a selection, a group, the root of a drawing) that pass the filter.
inline Walk<MemberStep> Members(GraphicStruct* set, uint32_t filter = kAllGraphics) {
    return Walk<MemberStep>({set, filter, 0});
}

// Returns the vertices of a vertex graphic or an insertion. They belong to the graphic.
inline Walk<VertexStep> Vertices(GraphicStruct* graphic) {
    return Walk<VertexStep>({graphic, 0});
}

// Returns the identifiers of the entries of a table.
inline Walk<EntryStep> Entries(TableStruct* table) {
    return Walk<EntryStep>({table, 0});
}

} // namespace orlo::host
