// Blocks of a drawing and their insertions (type 0x11).
#pragma once

#include "orlo/host/api.h"
#include "orlo/host/matrix.h"
#include "orlo/host/records.h"

// The block table of a drawing; null if it has none.
DRAWCORE_API TableStruct* BlocksFromDrawing(DrawingStruct*);
// Identifier of the block of that name, 0 if there isn't one.
DRAWCORE_API uint16_t BlocksFindBlock(TableStruct* blocks, const char* name);
// Adds a block with the graphic as its contents, which the table then owns; 0, and the graphic stays the caller's, if the
// name is bad or taken.
DRAWCORE_API uint16_t BlocksAddBlock(TableStruct* blocks, const char* name, GraphicStruct* contents);
// Removes a block with its contents; insertions of it show nothing from then on.
DRAWCORE_API void BlockDispose(TableStruct* blocks, uint16_t id);
// The contents of a block; the block's own. Null if there isn't one.
DRAWCORE_API GraphicStruct* BlockGetGraphic(TableStruct* blocks, uint16_t id);

// Makes the graphic (type 0x11) an insertion of the block under the matrix (null: the identity), and ties it to the drawing
// of the block table if it is tied to none. Its four vertices are the origin and the end points of the block's axes.
DRAWCORE_API int InsertSetData(GraphicStruct*, TableStruct* blocks, uint16_t id, const MatrixStruct*);
