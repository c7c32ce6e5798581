// Creates drawings and their tables.
//
//   DrawingStruct* drawing = DrawingNew();        // empty: layer "0", a solid line style, the standard colors
//   GraphicAdd(DrawingGetRoot(drawing), graphic); // now owned by the drawing
//   DrawingDispose(&drawing);                     // including all tables and graphics
#pragma once

#include "orlo/host/api.h"
#include "orlo/host/records.h"

// Creates a drawing with the tables of orlo/host/words.h. The caller frees it with DrawingDispose. Returns null if
// memory runs out.
DRAWCORE_API DrawingStruct* DrawingNew(void);
// Frees the drawing and everything that it owns, and sets the pointer to null. Functions that are later called with one
// of its tables treat it as an empty table.
DRAWCORE_API void DrawingDispose(DrawingStruct** drawing);

// Returns the group of all graphics of the drawing, in drawing order. It belongs to the drawing.
DRAWCORE_API GraphicStruct* DrawingGetRoot(DrawingStruct*);

// Sets the result of DrawingGetCoordSpace (kSpaceWorld in a new drawing). Returns 0, and changes nothing, if `space` is
// not one of the kSpace... values.
DRAWCORE_API int DrawingSetCoordSpace(DrawingStruct*, uint16_t space);

// Adds a table whose entries have caller-owned data. Returns null if the name already exists.
DRAWCORE_API TableStruct* DrawingAddTable(DrawingStruct*, const char* name);
// Removes a table of the drawing, including its entries. Returns 0 if the table does not belong to this drawing.
DRAWCORE_API int DrawingDeleteTable(DrawingStruct*, TableStruct*);
