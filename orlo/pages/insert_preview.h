// The preview of the Block Insertion page: an insertion of a pyramid with lettered axes.
#pragma once

#include "orlo/host/graphic.h"

// The use of a drawing's block "$PREVIEW_BLOCK" by one page. Pages over the same drawing share the block, which is
// removed with the last of them.
class InsertPreview {
public:
    InsertPreview() = default;
    // Removes the block, unless another page uses it, from the drawing of the insertions or, if there are none, from
    // the current drawing.
    ~InsertPreview();
    InsertPreview(const InsertPreview&) = delete;
    InsertPreview& operator=(const InsertPreview&) = delete;

    // Creates an insertion of the block, adding the block to the drawing if needed. The caller owns the insertion.
    // Returns null on failure.
    GraphicStruct* NewInsertion(DrawingStruct* drawing);

private:
    DrawingStruct* m_drawing = nullptr; // null until an insertion has been created
};
