// Builds the vertex graphics that pages show as their preview.
#pragma once

#include <initializer_list>

#include "orlo/host/graphic.h"

struct PreviewPoint {
    double x, y; // in the unit square
};

// A new vertex graphic through the points, with an undrawn part that holds its extents at the unit square. It belongs to
// the caller. Null if it cannot be made.
GraphicStruct* NewPreviewShape(std::initializer_list<PreviewPoint> points);
