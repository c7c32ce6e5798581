// The selected graphics of an open drawing, and the area to redraw after changes of the selection.
#pragma once

#include <optional>
#include <vector>

#include "demo/viewer/world.h"
#include "drawcore/selection.h"
#include "orlo/host/owners.h"

// Returns the extents of a graphic, or nothing if it has none.
std::optional<WorldBox> ExtentsOf(GraphicStruct* graphic);

class Selection {
public:
    enum class Operation { Replace, Add, Toggle };

    Selection();
    // Copies the selection to a separate set.
    Selection(const Selection& other);
    Selection& operator=(const Selection&) = delete;

    // Returns the set that the library iterates over; also a graphic that draws all its members.
    GraphicStruct* Set() const { return m_set.get(); }
    int Count() const { return ::SelectionCount(Set()); }
    bool Contains(GraphicStruct* graphic) const { return ::SelectionContains(Set(), graphic); }
    std::vector<GraphicStruct*> Members() const;
    std::optional<WorldBox> Extents() const { return ExtentsOf(Set()); }

    void Clear();
    void Apply(const std::vector<GraphicStruct*>& graphics, Operation operation);

    // Returns the extents of all graphics added or removed since the last call.
    std::optional<WorldBox> TakeChanged();

private:
    void AddToChanged(GraphicStruct* graphic);

    orlo::host::OwnedGraphic m_set;
    std::optional<WorldBox> m_changed;
};
