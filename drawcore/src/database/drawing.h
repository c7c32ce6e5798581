// A drawing: its contents, and the file that it was read from.
#pragma once

#include "drawcore/src/graphics/drawing_contents.h"

namespace drawcore {

struct DxfSource;

class Drawing : public DrawingContents {
public:
    Drawing();
    ~Drawing();

    // Returns the drawing behind a pointer from outside, or null for null and for a drawing that has been freed.
    static Drawing* Find(DrawingStruct* drawing);

    std::string scaleText = "1 : 1"; // of the drawing on paper
    uint16_t coordSpace = kSpaceWorld;
    std::unique_ptr<DxfSource> source; // null: the drawing was not read from a file
};

} // namespace drawcore
