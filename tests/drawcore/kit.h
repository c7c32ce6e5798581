// Support for tests of the drawing database: graphics from points, properties by name, and pictures.
#pragma once

#include <string>
#include <vector>

#include <drawcore/drawing.h>
#include <drawcore/linestyle.h>
#include <drawcore/object_counts.h>
#include <drawcore/selection.h>
#include <drawcore/table.h>
#include <drawcore/view.h>

#include "orlo/host/host.h"
#include "orlo/host/owners.h"
#include "orlo/host/property.h"
#include "support/pixels.h"
#include "support/test_drawing.h"

struct P {
    double x, y;
    bool drawn = true;
};

// Create graphics without an owner.
GraphicStruct* MakeLines(const std::vector<P>& points);
GraphicStruct* MakeSquare(double left, double bottom, double size);
// Creates a text in Tahoma, with its natural width if width is 0.
GraphicStruct* MakeText(const char* text, P at, double height, double angle = 0, double width = 0);
GraphicStruct* MakeInsert(TableStruct* blocks, uint16_t block, P at, double sx, double sy, double angle = 0);

void AddVertex(GraphicStruct* graphic, double x, double y);
std::vector<GraphicStruct*> Members(GraphicStruct* set, uint32_t filter = kAllGraphics);

struct Box {
    double left, bottom, right, top;
};
Box BoxOf(GraphicStruct* graphic);

// Owns a graphic that has no other owner.
class TestGraphic {
public:
    explicit TestGraphic(GraphicStruct* graphic) : m_graphic(graphic) {}
    operator GraphicStruct*() const { return m_graphic.get(); }
    GraphicStruct* operator->() const { return m_graphic.get(); }

private:
    orlo::host::OwnedGraphic m_graphic;
};

// Access values by name. If the graphic has no such property or rejects the value, they return false or a value that is
// not used elsewhere.
inline bool SetInteger(GraphicStruct* graphic, const char* name, uint32_t value) {
    return orlo::host::WriteProperty(graphic, name, value);
}
inline bool SetReal(GraphicStruct* graphic, const char* name, double value) {
    return orlo::host::WriteProperty(graphic, name, value);
}
inline bool SetText(GraphicStruct* graphic, const char* name, const std::string& value) {
    return orlo::host::WriteProperty(graphic, name, value);
}
inline uint32_t GetWhole(GraphicStruct* graphic, const char* name) {
    return orlo::host::ReadProperty<uint32_t>(graphic, name).value_or(0xDEAD);
}
inline double GetReal(GraphicStruct* graphic, const char* name) {
    return orlo::host::ReadProperty<double>(graphic, name).value_or(-999);
}
inline std::string GetText(GraphicStruct* graphic, const char* name) {
    return orlo::host::ReadProperty<std::string>(graphic, name).value_or("(none)");
}

// A drawing that owns graphics and converts to the types that host functions take.
class OwnDrawing : public TestDrawing {
public:
    operator DrawingStruct*() const { return Get(); }
    GraphicStruct* Root() const { return DrawingGetRoot(Get()); }
    GraphicStruct* Add(GraphicStruct* graphic) const { return GraphicAdd(Root(), graphic); }
};

// A picture of 0..100 drawing units in each direction, one pixel per unit: unit x is pixel column x, unit y is row 100
// - y.
class Picture {
public:
    explicit Picture(DrawingStruct*);

    // Draws only the graphic, on that background.
    void Draw(GraphicStruct* graphic, int preview = 0, COLORREF paper = RGB(255, 255, 255));
    ViewportStruct* Viewport() const { return m_viewport.get(); }
    const Pixels& Bits() const { return m_pixels; }
    HDC DC() const { return m_pixels.DC(); }
    // Returns the color at a point of the drawing.
    COLORREF At(int x, int y) const { return m_pixels.At(x, 100 - y); }
    // Counts pixels other than white in the box of drawing units, including its upper limits.
    int Covered(int left, int bottom, int right, int top) const;
    int Covered() const { return Covered(0, 0, 100, 100); }

private:
    Pixels m_pixels{101, 101};
    orlo::host::OwnedViewport m_viewport;
};

// Checks that all objects created since its construction have been freed.
class LeakCheck {
public:
    LeakCheck() { DrawCoreGetObjectCounts(&m_before); }
    bool HasNoLeaks() const;

private:
    DrawCoreObjectCounts m_before;
};
