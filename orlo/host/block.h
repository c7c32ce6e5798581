// Blocks of a drawing and their insertions (kGraphicInsert).
#pragma once

#include "orlo/host/api.h"
#include "orlo/host/matrix.h"
#include "orlo/host/records.h"

// Returns the block table of a drawing, which the drawing owns, or null if it has no blocks.
// Called: when the Block Insertion page opens.
// Stub: return null. Lost: the preview of the Block Insertion page.
// Failure: null: the page has no preview.
DRAWCORE_API TableStruct* BlocksFromDrawing(DrawingStruct* drawing);
// Returns the identifier of the block with the given name, or 0 if there is no such block.
// Called: when the Block Insertion page opens.
// Stub: return 0. Lost: the preview of the Block Insertion page.
DRAWCORE_API uint16_t BlocksFindBlock(TableStruct* blocks, const char* name);
// Adds a block and returns its identifier. The table copies the name and takes ownership of `contents`. Returns 0 if
// the name is invalid or already exists; the caller then still owns `contents`.
// Called: when the Block Insertion page opens, and when the user presses New in the style part.
// Stub: return 0. Lost: the preview of the Block Insertion page, and new styles.
// Failure: 0: the page has no preview; the style is not added.
DRAWCORE_API uint16_t BlocksAddBlock(TableStruct* blocks, const char* name, GraphicStruct* contents);
// Removes a block and frees its contents. Remaining insertions of the block draw nothing.
// Called: when the last sheet with a Block Insertion page is deleted.
// Stub: do nothing. Lost: nothing, if BlocksAddBlock is a stub too.
DRAWCORE_API void BlockDispose(TableStruct* blocks, uint16_t id);
// Returns the contents of a block, which the block owns, or null if there is no such block.
// Called: when the list of style names is filled.
// Stub: return null. Lost: the list of the style part.
// Failure: null: the block is not listed.
DRAWCORE_API GraphicStruct* BlockGetGraphic(TableStruct* blocks, uint16_t id);

// Turns the graphic, which has the type kGraphicInsert, into an insertion of the block, transformed by the matrix
// (null: the identity). Its four vertices become the origin and the end points of the block's axes. A graphic that is
// not attached to a drawing is attached to the drawing of the block table. Returns non-zero on success.
// Called: by the Block Insertion page, for its preview.
// Stub: return 0. Lost: the preview of the Block Insertion page.
// Failure: the result is ignored; the preview is empty.
DRAWCORE_API int InsertSetData(GraphicStruct* insert, TableStruct* blocks, uint16_t id, const MatrixStruct* matrix);
