// Blocks of a drawing and their insertions (kGraphicInsert).
#pragma once

#include "orlo/host/api.h"
#include "orlo/host/matrix.h"
#include "orlo/host/records.h"

// Returns the block table of a drawing, or null if it has none. It belongs to the drawing.
// Called: when the Block Insertion page opens.
// Stub: return null. Lost: the preview of the Block Insertion page.
// Failure: null: the page has no preview.
DRAWCORE_API TableStruct* BlocksFromDrawing(DrawingStruct* drawing);
// Returns the identifier of the block with that name, or 0 if there is none.
// Called: when the Block Insertion page opens.
// Stub: return 0. Lost: the preview of the Block Insertion page.
DRAWCORE_API uint16_t BlocksFindBlock(TableStruct* blocks, const char* name);
// Adds a block and returns its identifier. The table then owns `contents`. Returns 0 if the name is invalid or already
// exists; `contents` then remains the caller's. The name is copied.
// Called: when the Block Insertion page opens, and by New in the style part.
// Stub: return 0. Lost: the preview of the Block Insertion page, and new styles.
// Failure: 0: the page has no preview; the style is not added.
DRAWCORE_API uint16_t BlocksAddBlock(TableStruct* blocks, const char* name, GraphicStruct* contents);
// Removes a block and frees its contents. Insertions of the block draw nothing from then on.
// Called: when the last sheet with a Block Insertion page is deleted.
// Stub: do nothing. Lost: nothing, if BlocksAddBlock is a stub too.
DRAWCORE_API void BlockDispose(TableStruct* blocks, uint16_t id);
// Returns the contents of a block, or null if there is no such block. They belong to the block.
// Called: when the list of style names is filled.
// Stub: return null. Lost: the list of the style part.
// Failure: null: the block is not listed.
DRAWCORE_API GraphicStruct* BlockGetGraphic(TableStruct* blocks, uint16_t id);

// Makes the graphic (kGraphicInsert) an insertion of the block, transformed by the matrix (null: the identity). Its
// four vertices are the origin and the end points of the block's axes. A graphic that is not attached to a drawing is
// attached to that of the block table. Returns non-zero on success.
// Called: by the Block Insertion page, for its preview.
// Stub: return 0. Lost: the preview of the Block Insertion page.
// Failure: the result is ignored; the preview is empty.
DRAWCORE_API int InsertSetData(GraphicStruct* insert, TableStruct* blocks, uint16_t id, const MatrixStruct* matrix);
