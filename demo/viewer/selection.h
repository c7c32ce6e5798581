// The selected graphics of an open drawing, and where the picture has to be renewed because the selection changed.
#pragma once

#include <optional>
#include <vector>

#include "demo/viewer/world.h"
#include "drawcore/selection.h"

// The box of a graphic; nothing for one without an extent.
std::optional<WorldBox> ExtentsOf(GraphicStruct* graphic);

class Selection {
public:
    enum class Way { Replace, Add, Toggle };

    Selection();
    ~Selection();
    Selection(const Selection&) = delete;
    Selection& operator=(const Selection&) = delete;

    // The set that the library walks; also a graphic that draws all its members.
    GraphicStruct* Set() const { return m_set; }
    int Count() const { return ::SelectionCount(m_set); }
    bool Contains(GraphicStruct* graphic) const { return ::SelectionContains(m_set, graphic); }
    std::vector<GraphicStruct*> Members() const;
    std::optional<WorldBox> Extents() const { return ExtentsOf(m_set); }

    void Clear();
    void Apply(const std::vector<GraphicStruct*>& graphics, Way way);

    // The box of all graphics that came or went since the last call.
    std::optional<WorldBox> TakeChanged();

private:
    void Note(GraphicStruct* graphic);

    GraphicStruct* m_set;
    std::optional<WorldBox> m_changed;
};
