// Builds the graphics by which pages and controls show what a graphic would look like: previews and samples.
#pragma once

#include <initializer_list>

#include "orlo/host/graphic.h"
#include "orlo/samples/style_sample.h"

struct ListedVertex {
    double x, y, z; // drawing units
    bool drawn;     // the segment to it
};

// A new vertex graphic of these vertices, the caller's. Null if it cannot be made.
GraphicStruct* NewVertexList(std::initializer_list<ListedVertex> vertices);

// The same with an undrawn part that holds its extents at the unit square.
GraphicStruct* NewPreviewShape(std::initializer_list<ListedVertex> vertices);

// The same as a sample, in pen color 0.
SampleGraphic NewSample(std::initializer_list<ListedVertex> vertices);
