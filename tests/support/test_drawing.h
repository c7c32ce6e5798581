// A drawing of its own for a test: current while it lives, freed with all that it owns.
#pragma once

#include <drawcore/application.h>
#include <drawcore/owned_drawing.h>
#include <drawcore/table.h>

#include "orlo/host/host.h"

class TestDrawing {
public:
    TestDrawing() : m_drawing(DrawingNew()) { AppSetCurrentDrawing(Get()); }

    DrawingStruct* Get() const { return m_drawing.get(); }
    TableStruct* Table(const char* name) const { return DrawingGetTable(Get(), name); }
    // Earlier than the end: what a host does while controls still hold its tables.
    void Close() { m_drawing.reset(); }

private:
    OwnedDrawing m_drawing;
};
