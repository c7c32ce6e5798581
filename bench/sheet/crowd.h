// A drawing of its own whose graphics are all selected.
#pragma once

#include "drawcore/drawing.h"
#include "drawcore/owned_drawing.h"
#include "drawcore/selection.h"
#include "orlo/host/owners.h"

class Crowd {
public:
    Crowd() : m_drawing(::DrawingNew()), m_selection(::SelectionNew()) {}

    DrawingStruct* Drawing() const { return m_drawing.get(); }
    GraphicStruct* Selection() const { return m_selection.get(); }
    // The drawing owns the graphic from then on.
    void Add(GraphicStruct* graphic) {
        ::SelectionAdd(Selection(), ::GraphicAdd(::DrawingGetRoot(Drawing()), graphic));
    }

private:
    OwnedDrawing m_drawing;
    orlo::host::OwnedGraphic m_selection; // goes before its members
};
