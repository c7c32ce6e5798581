// Drawings, for host programs.
//
//   DrawingStruct* drawing = DrawingNew();        // empty: layer "0", a solid line style, the numbered colours
//   GraphicAdd(DrawingGetRoot(drawing), graphic); // the drawing owns it now
//   DrawingDispose(&drawing);                     // with all tables and graphics
#pragma once

#include "orlo/host/api.h"
#include "orlo/host/records.h"

// A drawing with the tables "_Layers_", "_LineStyles_", "_BrushStyles_", "_Colors_", "_Blocks_" and "_Units_". Null if
// memory runs out.
DRAWCORE_API DrawingStruct* DrawingNew(void);
// Frees the drawing with all that it owns and clears the pointer. Tables of it that someone still holds answer from then
// on like empty ones.
DRAWCORE_API void DrawingDispose(DrawingStruct** drawing);

// The group of all graphics of the drawing, in the order of drawing. The drawing's.
DRAWCORE_API GraphicStruct* DrawingGetRoot(DrawingStruct*);

// What DrawingGetCoordSpace gives from then on; a new drawing has 0. 0, with nothing changed, if there is no such space.
DRAWCORE_API int DrawingSetCoordSpace(DrawingStruct*, uint16_t space);

// Adds a table of plain entries, whose data stays the caller's; null if the name is taken.
DRAWCORE_API TableStruct* DrawingAddTable(DrawingStruct*, const char* name);
// Removes any table of the drawing with its entries. 0 if the table is not this drawing's.
DRAWCORE_API int DrawingDeleteTable(DrawingStruct*, TableStruct*);
