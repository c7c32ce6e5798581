// Viewports: where and how graphics are drawn. The functions are called in this order: ViewportSetRect,
// ViewportSetExtents, ViewportSetGDIStuff, GraphicDrawEx2.
#pragma once

#include "orlo/host/api.h"
#include "orlo/host/matrix.h"
#include "orlo/host/records.h"

// Creates a viewport. The caller frees it with ViewportDispose. Returns null on failure.
// Called: for each preview and each list with samples.
// Stub: return null. Lost: samples, which are replaced by names, and previews. The other functions for viewports and
// GraphicDrawEx2 are then not called.
// Failure: null: previews are empty, and lists show names.
DRAWCORE_API ViewportStruct* ViewportNewEx(void);
// Frees the viewport and sets the pointer to null.
// Called: for each viewport of ViewportNewEx.
// Stub: do nothing. Lost: nothing, if ViewportNewEx is a stub too.
DRAWCORE_API void ViewportDispose(ViewportStruct** viewport);

// Sets the rectangle to draw in, in logical units of the device context; nothing is drawn outside.
// Called: before a preview or a sample is drawn.
// Stub: do nothing. Lost: nothing, if ViewportNewEx is a stub too.
DRAWCORE_API void ViewportSetRect(ViewportStruct* viewport, const RECT* rect);
// Fits the extents (drawing units) into the rectangle: centered, with the aspect ratio kept. fit is kFitWhole.
DRAWCORE_API void ViewportSetExtents(ViewportStruct* viewport, const ExtentsStruct* extents, int fit);
// Sets the device context to draw on, which remains the caller's. mapMode is the result of GetMapMode. flags is 1.
DRAWCORE_API void ViewportSetGDIStuff(ViewportStruct* viewport, HWND window, HDC dc, int mapMode, int flags);
// Sets the drawing in which styles, layers and blocks are looked up; null: the drawing of the graphic.
DRAWCORE_API void ViewportSetDrawing(ViewportStruct* viewport, DrawingStruct* drawing);

// Returns the extents of a graphic and its members. They belong to the graphic and are valid until it changes. selected
// is 0.
// Called: before a preview or a sample is drawn.
DRAWCORE_API const ExtentsStruct* GraphicGetExtentsSel(GraphicStruct* graphic, int selected);
// Return the left and the right end; 0 if the extents are empty.
// Called: before samples of line styles and previews of brushes are drawn.
DRAWCORE_API double ExtentsGetX1(const ExtentsStruct* extents);
DRAWCORE_API double ExtentsGetX2(const ExtentsStruct* extents);

// Draws the graphic and its members, transformed by the matrix (null: not transformed). The device context is left as
// it was. preview 1: the preview of an appearance; widths and dashes have the size that they have on paper at full
// size, whatever the extents were fitted to. preview 0: as in the drawing, or a sample. flags is 1.
// Called: when a preview or a sample is drawn.
// Stub: do nothing. Lost: samples and previews.
// Failure: an exception is reported once for the whole sheet; the preview shows the background.
DRAWCORE_API void GraphicDrawEx2(GraphicStruct* graphic, const MatrixStruct* matrix, ViewportStruct* viewport,
                                 int preview, int flags);
