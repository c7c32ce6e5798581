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

// Adds a style to a table kTableBrushStyles, with 256 families of lines at most; without any, it is solid. Returns its
// identifier, or 0 if the name is invalid or already exists, or if a value is not finite.
DRAWCORE_API uint16_t BrushStyleAddLines(TableStruct*, const char* name, const BrushLine* lines, int count);
