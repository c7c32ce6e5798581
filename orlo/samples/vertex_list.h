// Creates the graphics of previews and samples.
#pragma once

#include <initializer_list>

#include "orlo/host/graphic.h"
#include "orlo/samples/style_sample.h"

struct ListedVertex {
    double x, y, z; // in drawing units
    bool drawn;     // whether the segment that ends here is drawn
};

// Creates a vertex graphic that the caller owns. Returns null on failure.
GraphicStruct* NewVertexList(std::initializer_list<ListedVertex> vertices);

// Adds an undrawn segment that keeps the extents at the unit square.
GraphicStruct* NewPreviewShape(std::initializer_list<ListedVertex> vertices);

// Creates a sample with pen color 0.
SampleGraphic NewSample(std::initializer_list<ListedVertex> vertices);
