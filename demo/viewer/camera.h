// Which part of a drawing a window shows: a viewport of the database, and the road between drawing units and device
// pixels of the window's client area.
#pragma once

#include <afxgdi.h>

#include "demo/viewer/world.h"
#include "orlo/host/owners.h"

class Camera {
public:
    Camera();

    ViewportStruct* Viewport() const { return m_viewport.get(); }
    void SetDrawing(DrawingStruct* drawing) { ::ViewportSetDrawing(Viewport(), drawing); }

    // Size of the client area; the middle of the picture stays the middle.
    void SetWindow(CSize pixels);
    // Shows all that is seen of a graphic with a margin (pixels) on each side; one without an extent changes nothing.
    void Fit(GraphicStruct* graphic, int margin);
    // Makes everything `factor` times as large; what is under the anchor stays there.
    void Zoom(double factor, CPoint anchor);
    void Pan(CSize pixels);
    void CenterOn(WorldPoint point);

    WorldPoint ToWorld(CPoint pixel) const;
    // Far points are held at +-1e6 pixels.
    CPoint ToPixels(WorldPoint point) const;
    // The pixels that a box covers, at least one.
    CRect ToPixels(const WorldBox& box) const;
    WorldBox Visible() const;

private:
    orlo::host::OwnedViewport m_viewport;
    CSize m_window{1, 1};
};
