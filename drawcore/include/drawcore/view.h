// Viewing and picking, for host programs: what a window on a drawing needs beyond orlo/host/viewport.h.
//
//   ViewportSetRect(view, &client);
//   ViewportFitSeen(view, root);                                    // zoom to all
//   ViewportSetGDIStuff(view, window, dc, MM_TEXT, 1);
//   GraphicDrawEx2(root, nullptr, view, 0, 1);
//   GraphicDrawHighlighted(selection, view, RGB(0, 120, 215));
//   picked = ViewportPick(view, root, cursor, 4, 0xFFFFFFFF);
//
// Positions and distances are device pixels unless said otherwise. A changed rectangle keeps scale and middle.
#pragma once

#include "orlo/host/api.h"
#include "orlo/host/records.h"

// Background colour of the drawing: lines of nearly that colour are drawn black or white, so that they can be seen, and on a
// dark one lines that are too dark are drawn in a lighter shade of their colour. Without this call it is the system's window
// colour or, for previews, the application's preview background.
DRAWCORE_API void ViewportSetBackground(ViewportStruct*, uint32_t color);

// Whether pens are as wide as they are (so it is without this call), or all as thin as can be.
DRAWCORE_API void ViewportShowLineWeights(ViewportStruct*, int show);

// Fits what is seen of the graphic into the rectangle, as ViewportSetExtents does: all but what lies on hidden layers. If
// nothing is seen, all of it.
DRAWCORE_API void ViewportFitSeen(ViewportStruct*, GraphicStruct*);

// Draws like GraphicDrawEx2 (no preview), for so many milliseconds and a little longer; 0 if there is more to draw. place is 0
// at first, and goes to the next call as this one has left it. Until all is drawn, viewport and clipping must stay as they
// are, and nothing else may be drawn by the viewport; what is removed from the set or changed meanwhile may be missing.
DRAWCORE_API int GraphicDrawOn(GraphicStruct* set, ViewportStruct*, uint32_t* place, int milliseconds);

// Draws a graphic with its members in one colour, solid and at least three pixels wide.
DRAWCORE_API void GraphicDrawHighlighted(GraphicStruct* set, ViewportStruct*, uint32_t color);

// Zooms in (factor above 1) or out; what is under fixed stays there.
DRAWCORE_API void ViewportZoom(ViewportStruct*, POINT fixed, double factor);
// Moves the picture by that much.
DRAWCORE_API void ViewportPan(ViewportStruct*, int dx, int dy);
// The point of the drawing (drawing units) under a pixel.
DRAWCORE_API void ViewportToDrawing(ViewportStruct*, POINT device, double* x, double* y);

// The member of the set (a drawing's root, a selection) that is drawn last of those within tolerance of the pixel, or null.
// filter as in GraphicFirst. What is on invisible or locked layers is not found; an insertion is found as a whole.
DRAWCORE_API GraphicStruct* ViewportPick(ViewportStruct*, GraphicStruct* set, POINT device, int tolerance,
                                         uint32_t filter);
// Adds to the selection the members that lie wholly in the rectangle or, with crossing, have a part in it; the number
// added.
DRAWCORE_API int ViewportPickWindow(ViewportStruct*, GraphicStruct* set, const RECT* device, int crossing,
                                    uint32_t filter, GraphicStruct* selection);

// The box of a graphic (GraphicGetExtentsSel) in drawing units: left, bottom, right, top. 0, with nothing written, if it is
// empty.
DRAWCORE_API int ExtentsGetBox(const ExtentsStruct*, double box[4]);
