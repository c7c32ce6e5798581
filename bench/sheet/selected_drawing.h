// A drawing, the application's current one, with all its graphics selected.
#pragma once

#include "drawcore/application.h"
#include "drawcore/drawing.h"
#include "drawcore/owned_drawing.h"
#include "drawcore/selection.h"
#include "orlo/host/owners.h"

class SelectedDrawing {
public:
    SelectedDrawing() : m_drawing(::DrawingNew()), m_selection(::SelectionNew()) { ::AppSetCurrentDrawing(Drawing()); }

    DrawingStruct* Drawing() const { return m_drawing.get(); }
    GraphicStruct* Selection() const { return m_selection.get(); }
    // Transfers ownership of the graphic to the drawing.
    void Add(GraphicStruct* graphic) {
        ::SelectionAdd(Selection(), ::GraphicAdd(::DrawingGetRoot(Drawing()), graphic));
    }

private:
    OwnedDrawing m_drawing;
    orlo::host::OwnedGraphic m_selection; // destroyed before its members
};

// Graphics of one type.
class UniformDrawing : public SelectedDrawing {
public:
    UniformDrawing(int n, int type) {
        for (int i = 0; i < n; ++i)
            Add(::GraphicNewEx(type, 0, 1));
    }
};
