// What the tests of the drawing database share: graphics from points, properties by name, pictures of them.
#pragma once

#include <string>
#include <vector>

#include <drawcore/census.h>
#include <drawcore/drawing.h>
#include <drawcore/linestyle.h>
#include <drawcore/selection.h>
#include <drawcore/table.h>
#include <drawcore/view.h>

#include "orlo/host/host.h"
#include "support/pixels.h"
#include "support/test_drawing.h"

struct P {
    double x, y;
    bool drawn = true;
};

// A vertex graphic that belongs to nobody.
GraphicStruct* MakeLines(const std::vector<P>& points);
GraphicStruct* MakeSquare(double left, double bottom, double size);

// Values by name; false if the graphic has no such property, or refuses.
bool SetWhole(GraphicStruct*, const char* name, uint32_t value);
bool SetReal(GraphicStruct*, const char* name, double value);
bool SetText(GraphicStruct*, const char* name, const char* value);
uint32_t GetWhole(GraphicStruct*, const char* name);
double GetReal(GraphicStruct*, const char* name);
std::string GetText(GraphicStruct*, const char* name);

// A drawing that takes graphics and is passed as what the host's functions take.
class OwnDrawing : public TestDrawing {
public:
    operator DrawingStruct*() const { return Get(); }
    GraphicStruct* Root() const { return DrawingGetRoot(Get()); }
    GraphicStruct* Add(GraphicStruct* graphic) const { return GraphicAdd(Root(), graphic); }
};

// A picture of 0..100 drawing units on each side, one pixel for each: unit x is pixel column x, unit y row 100 - y.
class Picture {
public:
    explicit Picture(DrawingStruct*);
    ~Picture();
    Picture(const Picture&) = delete;
    Picture& operator=(const Picture&) = delete;

    void Draw(GraphicStruct* graphic, int preview = 0) {
        GraphicDrawEx2(graphic, nullptr, m_viewport, preview, 1);
    }
    ViewportStruct* Viewport() const { return m_viewport; }
    const Pixels& Bits() const { return m_pixels; }
    HDC DC() const { return m_pixels.DC(); }
    // The colour at a point of the drawing.
    COLORREF At(int x, int y) const { return m_pixels.At(x, 100 - y); }
    // Pixels that are not white, in the box of drawing units (upper ends included).
    int Covered(int left, int bottom, int right, int top) const;
    int Covered() const { return Covered(0, 0, 100, 100); }

private:
    Pixels m_pixels;
    ViewportStruct* m_viewport;
};

// Nothing that was made since the construction is left.
class Balance {
public:
    Balance() { DrawCoreGetCensus(&m_before); }
    bool IsEven() const;

private:
    DrawCoreCensus m_before;
};
