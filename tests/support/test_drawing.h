// A drawing of its own for a test: current while it lives, freed with all that it owns.
#pragma once

#include <drawcore/application.h>
#include <drawcore/drawing.h>
#include <drawcore/table.h>

#include "orlo/host/host.h"

class TestDrawing {
public:
    TestDrawing() : m_drawing(DrawingNew()) { AppSetCurrentDrawing(m_drawing); }
    ~TestDrawing() { Close(); }
    TestDrawing(const TestDrawing&) = delete;
    TestDrawing& operator=(const TestDrawing&) = delete;

    DrawingStruct* Get() const { return m_drawing; }
    TableStruct* Table(const char* name) const { return DrawingGetTable(m_drawing, name); }
    // Earlier than the end: what a host does while controls still hold its tables.
    void Close() { DrawingDispose(&m_drawing); }

private:
    DrawingStruct* m_drawing;
};
