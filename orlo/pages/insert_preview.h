// The preview of the Block Insertion page: an insertion of a pyramid with lettered axes.
#pragma once

#include "orlo/host/graphic.h"

// A new insertion, the caller's, of the block "$PREVIEW_BLOCK", which the drawing gets if it has none. Null on failure.
GraphicStruct* NewInsertPreview(DrawingStruct* drawing);

// Takes the block out of the drawing, if it is there.
void RemoveInsertPreview(DrawingStruct* drawing);
