// Viewports: where and how graphics are drawn.
#pragma once

#include "orlo/host/api.h"
#include "orlo/host/records.h"

DRAWCORE_API ViewportStruct* ViewportNewEx(void);
DRAWCORE_API void ViewportDispose(ViewportStruct** viewport);

// Device rectangle to draw in, in device pixels.
DRAWCORE_API void ViewportSetRect(ViewportStruct*, const RECT*);
// Fits the extents (drawing units) into the rectangle, aspect kept, centred. fit is always 3.
DRAWCORE_API void ViewportSetExtents(ViewportStruct*, const ExtentsStruct*, int fit);
// Device to draw on; the caller keeps it. mapMode as of GetMapMode.
DRAWCORE_API void ViewportSetGDIStuff(ViewportStruct*, HWND, HDC, int mapMode, int flags);
DRAWCORE_API void ViewportSetDrawing(ViewportStruct*, DrawingStruct*);

// Extents of a graphic with its parts; the graphic's own, valid until it changes. selected is 0.
DRAWCORE_API const ExtentsStruct* GraphicGetExtentsSel(GraphicStruct*, int selected);
DRAWCORE_API double ExtentsGetX1(const ExtentsStruct*);
DRAWCORE_API double ExtentsGetX2(const ExtentsStruct*);

// Draws the graphic with its parts. matrix may be null. preview 1 draws with brush; flags is 1.
DRAWCORE_API void GraphicDrawEx2(GraphicStruct*, const void* matrix, ViewportStruct*, int preview, int flags);
