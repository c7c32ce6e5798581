// Blocks of a drawing and their insertions (kGraphicInsert).
#pragma once

#include "orlo/host/api.h"
#include "orlo/host/matrix.h"
#include "orlo/host/records.h"

// Returns the block table of a drawing, or null if it has none. It belongs to the drawing.
DRAWCORE_API TableStruct* BlocksFromDrawing(DrawingStruct* drawing);
// Returns the identifier of the block with that name, or 0 if there is none.
DRAWCORE_API uint16_t BlocksFindBlock(TableStruct* blocks, const char* name);
// Adds a block and returns its identifier. The table then owns `contents`. Returns 0 if the name is invalid or already
// exists; `contents` then remains the caller's.
DRAWCORE_API uint16_t BlocksAddBlock(TableStruct* blocks, const char* name, GraphicStruct* contents);
// Removes a block and frees its contents. Insertions of the block draw nothing from then on.
DRAWCORE_API void BlockDispose(TableStruct* blocks, uint16_t id);
// Returns the contents of a block, or null if there is no such block. They belong to the block.
DRAWCORE_API GraphicStruct* BlockGetGraphic(TableStruct* blocks, uint16_t id);

// Makes the graphic (kGraphicInsert) an insertion of the block, transformed by the matrix (null: the identity). Its
// four vertices are the origin and the end points of the block's axes. A graphic that is not attached to a drawing is
// attached to that of the block table. Returns non-zero on success; the library ignores the result.
DRAWCORE_API int InsertSetData(GraphicStruct* insert, TableStruct* blocks, uint16_t id, const MatrixStruct* matrix);
