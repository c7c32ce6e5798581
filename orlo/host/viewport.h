// Viewports, which define where and how graphics are drawn. The functions are called in this order: ViewportSetRect,
// ViewportSetExtents, ViewportSetGDIStuff, GraphicDrawEx2.
#pragma once

#include "orlo/host/api.h"
#include "orlo/host/matrix.h"
#include "orlo/host/records.h"

// Creates a viewport. The caller frees it with ViewportDispose. Returns null on failure.
// Called: for each preview and each list with samples.
// Stub: return null. Lost: samples, which are replaced by names, and previews. GraphicDrawEx2 and the other functions
// for viewports are then not called.
// Failure: null: previews are empty, and lists show names.
DRAWCORE_API ViewportStruct* ViewportNewEx(void);
// Frees the viewport and sets the pointer to null.
// Called: for each viewport that ViewportNewEx has created.
// Stub: do nothing. Lost: nothing, if ViewportNewEx is a stub too.
DRAWCORE_API void ViewportDispose(ViewportStruct** viewport);

// Sets the rectangle to draw in, in logical units of the device context. Nothing is drawn outside the rectangle.
// Called: before a preview or a sample is drawn.
// Stub: do nothing. Lost: nothing, if ViewportNewEx is a stub too.
DRAWCORE_API void ViewportSetRect(ViewportStruct* viewport, const RECT* rect);
// Scales the extents (in drawing units) to fit into the rectangle, centered and with the same aspect ratio. fit is
// kFitWhole.
DRAWCORE_API void ViewportSetExtents(ViewportStruct* viewport, const ExtentsStruct* extents, int fit);
// Sets the device context to draw on, which the caller still owns. mapMode is its mapping mode, as returned by
// GetMapMode. flags is 1.
DRAWCORE_API void ViewportSetGDIStuff(ViewportStruct* viewport, HWND window, HDC dc, int mapMode, int flags);
// Sets the drawing in which styles, layers and blocks are looked up; null: the drawing of the graphic.
DRAWCORE_API void ViewportSetDrawing(ViewportStruct* viewport, DrawingStruct* drawing);

// Returns the extents of a graphic and its members. The graphic owns them, and they are valid until it changes.
// selected is 0.
// Called: before a preview or a sample is drawn.
DRAWCORE_API const ExtentsStruct* GraphicGetExtentsSel(GraphicStruct* graphic, int selected);
// Return the left and the right edge in drawing units, or 0 if the extents are empty.
// Called: before samples of line styles and previews of brushes are drawn.
DRAWCORE_API double ExtentsGetX1(const ExtentsStruct* extents);
DRAWCORE_API double ExtentsGetX2(const ExtentsStruct* extents);

// Draws the graphic and its members, transformed by the matrix (null: the identity), and restores the state of the
// device context. If preview is 1, the graphic is a preview of its appearance: widths and dashes are drawn at their
// full size on paper, regardless of the scale of the viewport. If preview is 0, as for samples, the graphic is drawn as
// in the drawing. flags is 1.
// Called: when a preview or a sample is drawn.
// Stub: do nothing. Lost: samples and previews.
// Failure: an exception is reported once for the whole sheet; the preview shows the background.
DRAWCORE_API void GraphicDrawEx2(GraphicStruct* graphic, const MatrixStruct* matrix, ViewportStruct* viewport,
                                 int preview, int flags);
