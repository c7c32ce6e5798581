// A viewport: the device rectangle, the part of the drawing that it shows, and the device.
#pragma once

#include <optional>

#include <windows.h>

#include "drawcore/src/geometry/extents.h"
#include "drawcore/src/graphics/drawing_contents.h"
#include "drawcore/src/graphics/graphic.h"
#include "drawcore/src/paint/seen_members.h"

struct ViewportStruct {};

namespace drawcore {

class Viewport : public ViewportStruct {
public:
    Viewport();
    ~Viewport();
    Viewport(const Viewport&) = delete;
    Viewport& operator=(const Viewport&) = delete;

    static Viewport* From(ViewportStruct* viewport) { return static_cast<Viewport*>(viewport); }

    // Shows these extents as large as the rectangle allows, in its middle; empty ones leave the view as it is.
    void Show(const Extents& extents);
    // Zooms by factor; the point of the drawing under fixed stays there.
    void Zoom(Point fixed, double factor);
    void Pan(double dx, double dy); // device pixels

    Point ToDrawing(Point device) const;
    Matrix ToDevice() const;

    RECT rect{};
    HDC dc = nullptr;
    int mapMode = MM_TEXT;
    DrawingStruct* drawing = nullptr;
    std::optional<Color> background;
    bool lineWeights = true;

    struct Painting { // that goes on with the next call
        SeenMembers seen;
        long budget = 0; // of the tracing
    };
    Painting painting;

private:
    Point Middle() const;

    double scale_ = 1; // pixels per drawing unit
    Point center_;     // what the middle of the rectangle shows
};

} // namespace drawcore
