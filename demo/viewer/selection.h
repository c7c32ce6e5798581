// The selected graphics of an open drawing, and where the picture has to be renewed because the selection changed.
#pragma once

#include <optional>
#include <vector>

#include "demo/viewer/world.h"
#include "drawcore/selection.h"
#include "orlo/host/owners.h"

// The box of a graphic; nothing for one without an extent.
std::optional<WorldBox> ExtentsOf(GraphicStruct* graphic);

class Selection {
public:
    enum class Way { Replace, Add, Toggle };

    Selection();
    // The same graphics in a set of its own.
    Selection(const Selection& other);
    Selection& operator=(const Selection&) = delete;

    // The set that the library walks; also a graphic that draws all its members.
    GraphicStruct* Set() const { return m_set.get(); }
    int Count() const { return ::SelectionCount(Set()); }
    bool Contains(GraphicStruct* graphic) const { return ::SelectionContains(Set(), graphic); }
    std::vector<GraphicStruct*> Members() const;
    std::optional<WorldBox> Extents() const { return ExtentsOf(Set()); }

    void Clear();
    void Apply(const std::vector<GraphicStruct*>& graphics, Way way);

    // The box of all graphics that came or went since the last call.
    std::optional<WorldBox> TakeChanged();

private:
    void Note(GraphicStruct* graphic);

    orlo::host::OwnedGraphic m_set;
    std::optional<WorldBox> m_changed;
};
