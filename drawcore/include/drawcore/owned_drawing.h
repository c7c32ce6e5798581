// Smart pointer for drawings. C++ only.
//
//   const OwnedDrawing drawing(DrawingNew());
#pragma once

#include <memory>

#include "drawcore/drawing.h"

struct DisposeDrawing {
    void operator()(DrawingStruct* drawing) const { DrawingDispose(&drawing); }
};

using OwnedDrawing = std::unique_ptr<DrawingStruct, DisposeDrawing>;
