// Builds the vertex graphics that pages show as their preview.
#pragma once

#include <initializer_list>

#include "orlo/host/graphic.h"

struct PreviewVertex {
    double x, y, z; // drawing units
    bool drawn;     // the segment to it
};

// A new vertex graphic of these vertices, the caller's. Null if it cannot be made.
GraphicStruct* NewVertexList(std::initializer_list<PreviewVertex> vertices);

// The same with an undrawn part that holds its extents at the unit square.
GraphicStruct* NewPreviewShape(std::initializer_list<PreviewVertex> vertices);
