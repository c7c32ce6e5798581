// Viewports: where and how graphics are drawn.
#pragma once

#include "orlo/host/api.h"
#include "orlo/host/matrix.h"
#include "orlo/host/records.h"

DRAWCORE_API ViewportStruct* ViewportNewEx(void);
DRAWCORE_API void ViewportDispose(ViewportStruct** viewport);

// Device rectangle to draw in, in device pixels.
DRAWCORE_API void ViewportSetRect(ViewportStruct*, const RECT*);
// Fits the extents (drawing units) into the rectangle set before, aspect kept, centred. fit is always 3.
DRAWCORE_API void ViewportSetExtents(ViewportStruct*, const ExtentsStruct*, int fit);
// Device to draw on; the caller keeps it. mapMode as of GetMapMode.
DRAWCORE_API void ViewportSetGDIStuff(ViewportStruct*, HWND, HDC, int mapMode, int flags);
// Drawing for the look-up of styles, layers and blocks; null: that of the graphic.
DRAWCORE_API void ViewportSetDrawing(ViewportStruct*, DrawingStruct*);

// Extents of a graphic with its parts; the graphic's own, valid until it changes. selected is 0.
DRAWCORE_API const ExtentsStruct* GraphicGetExtentsSel(GraphicStruct*, int selected);
// Left and right end; 0 for extents without a point.
DRAWCORE_API double ExtentsGetX1(const ExtentsStruct*);
DRAWCORE_API double ExtentsGetX2(const ExtentsStruct*);

// Draws the graphic with its parts, first transformed by the matrix (null: as it is). preview 1: for a preview of its look:
// widths and dashes as on paper at full size, whatever the extents were fitted to; 0: as it is in the drawing, or as a
// sample. flags is 1. The device context is left as it was.
DRAWCORE_API void GraphicDrawEx2(GraphicStruct*, const MatrixStruct*, ViewportStruct*, int preview,
                                 int flags);
