// Viewing and picking: the functions for a window with a drawing, in addition to orlo/host/viewport.h.
//
//   ViewportSetRect(view, &client);
//   ViewportFitVisible(view, root);                                    // zoom to all
//   ViewportSetGDIStuff(view, window, dc, MM_TEXT, 1);
//   GraphicDrawEx2(root, nullptr, view, 0, 1);
//   picked = ViewportPick(view, root, cursor, 4, 0xFFFFFFFF);
//
// Positions and distances are in device pixels unless stated otherwise. The scale and the center of the view are
// preserved if the rectangle of a viewport changes.
#pragma once

#include "orlo/host/api.h"
#include "orlo/host/records.h"

// Sets the background color of the drawing. Lines that would be hard to see are drawn in another color: lines in nearly
// the background color in black or white, dark lines in a lighter shade on a dark background and, if this function was
// called, light lines in a darker shade on a light background. The default is the system's window color or, for
// previews, the application's preview background.
DRAWCORE_API void ViewportSetBackground(ViewportStruct*, uint32_t color);

// Draws pens at their true width (the default) or as hairlines.
DRAWCORE_API void ViewportShowLineWeights(ViewportStruct*, int show);

// Fits the members of the graphic that are not on hidden layers into the rectangle, like ViewportSetExtents. If all are
// hidden, fits all of them.
DRAWCORE_API void ViewportFitVisible(ViewportStruct*, GraphicStruct*);

// Draws like GraphicDrawEx2 (preview 0) for about the given time. Returns 0 if there is more to draw. Set *position to
// 0 before the first call and pass it unchanged to the following calls. Until everything is drawn, the viewport and the
// clipping region must not be changed, and the viewport must not be used to draw anything else. Graphics that are
// removed or changed in the meantime may be missing.
DRAWCORE_API int GraphicDrawTimed(GraphicStruct* set, ViewportStruct*, uint32_t* position, int milliseconds);

// Zooms in (factor above 1) or out. The point of the drawing at `fixed` does not move.
DRAWCORE_API void ViewportZoom(ViewportStruct*, POINT fixed, double factor);
// Moves the view.
DRAWCORE_API void ViewportPan(ViewportStruct*, int dx, int dy);
// Stores the position of a pixel in drawing units.
DRAWCORE_API void ViewportToDrawing(ViewportStruct*, POINT device, double* x, double* y);

// Returns the topmost member of the set (the root of a drawing, a selection) within tolerance of the pixel, or null.
// filter is as in GraphicFirst. Graphics on invisible or locked layers are not found; an insertion is found as a whole.
DRAWCORE_API GraphicStruct* ViewportPick(ViewportStruct*, GraphicStruct* set, POINT device, int tolerance,
                                         uint32_t filter);
// Adds to the selection the members that are completely or, if crossing is not 0, at least partly inside the rectangle.
// Returns the number of added members.
DRAWCORE_API int ViewportPickWindow(ViewportStruct*, GraphicStruct* set, const RECT* device, int crossing,
                                    uint32_t filter, GraphicStruct* selection);

// Stores the extents of a graphic (GraphicGetExtentsSel) in drawing units: left, bottom, right, top. Returns 0, and
// stores nothing, if they are empty.
DRAWCORE_API int ExtentsGetBox(const ExtentsStruct*, double box[4]);
