// A drawing for a test: the current drawing during its lifetime, freed with all objects that it owns.
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
    // Closes the drawing early, as a host may do while controls still refer to its tables.
    void Close() { m_drawing.reset(); }

private:
    OwnedDrawing m_drawing;
};
