// Functions for programs that are not part of the contract: drawings and the current drawing. hostcheck uses them by
// name.
//
//   DrawingStruct* drawing = DrawingNew();
//   AppSetCurrentDrawing(drawing);
//   CGraphicPropertySheet* sheet =
//       InitGraphicPropertySheet(frame, nullptr, drawing, DrawingGetRoot(drawing), kAllGraphics);
#pragma once

#include "orlo/host/host.h"

// Creates a drawing with its tables, a rectangle, a text, a block and an insertion of it. The caller frees it with
// DrawingDispose. Returns null if memory runs out.
DRAWCORE_API DrawingStruct* DrawingNew(void);
// Frees the drawing and everything that it owns, and sets the pointer to null.
DRAWCORE_API void DrawingDispose(DrawingStruct** drawing);
// Returns the set of all graphics of the drawing, which owns it.
DRAWCORE_API GraphicStruct* DrawingGetRoot(DrawingStruct*);
// Makes a drawing the current one; null means none. Returns non-zero on success.
DRAWCORE_API int AppSetCurrentDrawing(DrawingStruct*);
