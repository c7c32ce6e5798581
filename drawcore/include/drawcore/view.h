// Viewing and picking: the functions for a window with a drawing, in addition to orlo/host/viewport.h.
//
//   ViewportSetRect(view, &client);
//   ViewportFitVisible(view, root);                                    // zoom to all
//   ViewportSetGDIStuff(view, window, dc, MM_TEXT, 1);
//   GraphicDrawEx2(root, nullptr, view, 0, 1);
//   picked = ViewportPick(view, root, cursor, 4, 0xFFFFFFFF);
//
// Positions and distances are in device pixels unless stated otherwise. If the rectangle of a viewport changes, the
// scale and the center of the view stay.
#pragma once

#include "orlo/host/api.h"
#include "orlo/host/records.h"

// Sets the background color of the drawing. Lines in nearly the same color are drawn in black or white. So that they
// are visible, dark lines are drawn in a lighter shade on a dark background and, if this function was called, light
// lines in a darker shade on a light one. The default is the system's window color or, for previews, the application's
// preview background.
DRAWCORE_API void ViewportSetBackground(ViewportStruct*, uint32_t color);

// Draws pens at their true width (the default) or as hairlines.
DRAWCORE_API void ViewportShowLineWeights(ViewportStruct*, int show);

// Fits the visible members of the graphic, those that are not on hidden layers, into the rectangle, as
// ViewportSetExtents does. If none is visible, fits all of them.
DRAWCORE_API void ViewportFitVisible(ViewportStruct*, GraphicStruct*);

// Draws like GraphicDrawEx2 (preview 0) for about the given time. Returns 0 if there is more to draw. *position is 0
// for the first call and is passed unchanged to the next one. Until everything is drawn, the viewport and the clipping
// region must not be changed, and the viewport must not be used to draw anything else. Graphics that are removed or
// changed meanwhile may be missing.
DRAWCORE_API int GraphicDrawTimed(GraphicStruct* set, ViewportStruct*, uint32_t* position, int milliseconds);

// Zooms in (factor above 1) or out. The point under `fixed` stays where it is.
DRAWCORE_API void ViewportZoom(ViewportStruct*, POINT fixed, double factor);
// Moves the view.
DRAWCORE_API void ViewportPan(ViewportStruct*, int dx, int dy);
// Stores the position of a pixel in drawing units.
DRAWCORE_API void ViewportToDrawing(ViewportStruct*, POINT device, double* x, double* y);

// Returns the topmost member of the set (the root of a drawing, a selection) within tolerance of the pixel, or null.
// filter is as in GraphicFirst. Graphics on invisible or locked layers are not found; an insertion is found as a whole.
DRAWCORE_API GraphicStruct* ViewportPick(ViewportStruct*, GraphicStruct* set, POINT device, int tolerance,
                                         uint32_t filter);
// Adds to the selection the members that are completely in the rectangle or, if crossing is not 0, at least partly.
// Returns the number of added members.
DRAWCORE_API int ViewportPickWindow(ViewportStruct*, GraphicStruct* set, const RECT* device, int crossing,
                                    uint32_t filter, GraphicStruct* selection);

// Stores the extents of a graphic (GraphicGetExtentsSel) in drawing units: left, bottom, right, top. Returns 0, and
// stores nothing, if they are empty.
DRAWCORE_API int ExtentsGetBox(const ExtentsStruct*, double box[4]);
