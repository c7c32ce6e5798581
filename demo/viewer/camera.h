// The visible part of a drawing: a viewport of the database, and conversion between drawing units and device pixels of
// the window's client area.
#pragma once

#include <afxgdi.h>

#include "demo/viewer/world.h"
#include "orlo/host/owners.h"

class Camera {
public:
    Camera();

    ViewportStruct* Viewport() const { return m_viewport.get(); }
    void SetDrawing(DrawingStruct* drawing) { ::ViewportSetDrawing(Viewport(), drawing); }

    // Sets the size of the client area. The center of the view does not change.
    void SetWindow(CSize pixels);
    // Shows all visible members of a graphic, with a margin in pixels on each side. Does nothing if it has no extents.
    void Fit(GraphicStruct* graphic, int margin);
    // Magnifies by `factor` around the anchor, which is a fixed point.
    void Zoom(double factor, CPoint anchor);
    void Pan(CSize pixels);
    void CenterOn(WorldPoint point);

    WorldPoint ToWorld(CPoint pixel) const;
    // Clamps the result to +-1e6 pixels.
    CPoint ToPixels(WorldPoint point) const;
    // Returns the pixels covered by a box, at least one.
    CRect ToPixels(const WorldBox& box) const;
    WorldBox Visible() const;

private:
    orlo::host::OwnedViewport m_viewport;
    CSize m_window{1, 1};
};
