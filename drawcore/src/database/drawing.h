// A drawing: its contents, and the file that it was read from.
#pragma once

#include "drawcore/src/graphics/drawing_contents.h"

namespace drawcore {

struct DxfSource;

class Drawing : public DrawingContents {
public:
    Drawing();
    ~Drawing();

    // Returns the drawing for a caller's pointer, or null if it is null or the drawing has been freed.
    static Drawing* Find(DrawingStruct* drawing);

    std::string scaleText = "1 : 1"; // scale of the drawing on paper
    uint16_t coordSpace = kSpaceWorld;
    std::unique_ptr<DxfSource> source; // null if the drawing was not read from a file
};

} // namespace drawcore
