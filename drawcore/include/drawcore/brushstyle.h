// Creates brush styles. Functions that read them are in orlo/host/style.h.
#pragma once

#include "orlo/host/api.h"
#include "orlo/host/records.h"

// One family of parallel lines of a hatch, in radians and drawing units at brush scale 1.
typedef struct BrushLine {
    double angle;        // direction of the lines
    double baseX, baseY; // a point at which the dashes of the first line start
    double along;        // offset of the next line along the lines
    double spacing;      // offset of the next line across the lines; not 0
    int dashCount;       // 0 to 8; 0 is a solid line
    double dashes[8];    // a positive item is a dash, a negative one a gap, 0 a dot
} BrushLine;

// Adds a style of 0 (solid) to 256 families of lines to a table kTableBrushStyles. Returns its identifier, or 0 if the
// name is invalid or already exists, or if a value is not finite.
DRAWCORE_API uint16_t BrushStyleAddLines(TableStruct*, const char* name, const BrushLine* lines, int count);
