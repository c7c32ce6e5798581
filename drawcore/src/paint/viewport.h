// A viewport: the device rectangle, the visible part of the drawing, and the device.
#pragma once

#include <optional>

#include <windows.h>

#include "drawcore/src/geometry/extents.h"
#include "drawcore/src/graphics/drawing_contents.h"
#include "drawcore/src/graphics/graphic.h"
#include "drawcore/src/paint/visible_members.h"

struct ViewportStruct {};

namespace drawcore {

class Viewport : public ViewportStruct {
public:
    Viewport();
    ~Viewport();
    Viewport(const Viewport&) = delete;
    Viewport& operator=(const Viewport&) = delete;

    static Viewport* From(ViewportStruct* viewport) { return static_cast<Viewport*>(viewport); }

    // Shows the extents as large as possible, centered in the rectangle. Empty extents do not change the view.
    void Show(const Extents& extents);
    // Zooms by factor around the fixed point.
    void Zoom(Point fixed, double factor);
    void Pan(double dx, double dy); // in device pixels

    Point ToDrawing(Point device) const;
    Matrix ToDevice() const;

    RECT rect{};
    HDC dc = nullptr;
    int mapMode = MM_TEXT;
    DrawingStruct* drawing = nullptr;
    std::optional<Color> background;
    bool lineWeights = true;

    struct Painting { // continued by the next call
        VisibleMembers members;
        long budget = 0; // of the tracing
    };
    Painting painting;

private:
    Point Middle() const;

    double scale_ = 1; // pixels per drawing unit
    Point center_;     // point at the center of the rectangle
};

} // namespace drawcore
