// The preview of the Block Insertion page: an insertion of a pyramid with lettered axes.
#pragma once

#include "orlo/host/graphic.h"

// A new insertion, the caller's, of the block "$PREVIEW_BLOCK", which is added to the drawing if it is missing. Null on
// failure.
GraphicStruct* NewInsertPreview(DrawingStruct* drawing);

// Removes the block from the drawing, if present.
void RemoveInsertPreview(DrawingStruct* drawing);
