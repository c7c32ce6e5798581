// What a program calls besides the contract: drawings, and which of them is current. The names are those that hostcheck knows.
//
//   DrawingStruct* drawing = DrawingNew();
//   AppSetCurrentDrawing(drawing);
//   CGraphicPropertySheet* sheet =
//       InitGraphicPropertySheet(frame, nullptr, drawing, DrawingGetRoot(drawing), kAllGraphics);
#pragma once

#include "orlo/host/host.h"

// A drawing with its tables, a rectangle, a text, a block and an insertion of it. Null if there is no memory.
DRAWCORE_API DrawingStruct* DrawingNew(void);
// Frees the drawing with all that it owns and clears the pointer.
DRAWCORE_API void DrawingDispose(DrawingStruct** drawing);
// The set of all graphics of the drawing.
DRAWCORE_API GraphicStruct* DrawingGetRoot(DrawingStruct*);
// The drawing that the sheet works in; null: none.
DRAWCORE_API int AppSetCurrentDrawing(DrawingStruct*);
