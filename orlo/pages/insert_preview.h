// The preview of the Block Insertion page: an insertion of a pyramid with lettered axes.
#pragma once

#include "orlo/host/graphic.h"

// One page's use of the block "$PREVIEW_BLOCK" of a drawing. Pages over the same drawing share the block, which goes
// with the last of them.
class InsertPreview {
public:
    InsertPreview() = default;
    // Removes the block, unless another page uses it, from the drawing of the insertions; without one from the current
    // drawing.
    ~InsertPreview();
    InsertPreview(const InsertPreview&) = delete;
    InsertPreview& operator=(const InsertPreview&) = delete;

    // Returns a new insertion of the block, which is added to the drawing if it is missing; the caller owns the
    // insertion. Returns null on failure.
    GraphicStruct* NewInsertion(DrawingStruct* drawing);

private:
    DrawingStruct* m_drawing = nullptr; // null: no insertion has been made
};
