// Making brush styles, for host programs; reading them is in orlo/host/style.h.
#pragma once

#include "orlo/host/api.h"
#include "orlo/host/records.h"

// One family of parallel lines of a hatch; radians and drawing units at brush scale 1.
struct BrushLine {
    double angle;        // direction of the lines
    double baseX, baseY; // one of the lines starts its dashes here
    double along;        // from a line to the next: the shift of the dashes along the line
    double spacing;      // and the distance across it, not 0
    int dashCount;       // 0 to 8; 0 is a solid line
    double dashes[8];    // positive a dash, negative a gap, 0 a dot
};

// Adds a style to a table "_BrushStyles_"; count 0 is a solid filling, at most 256. The identifier; 0 if the name is bad or
// taken or a value is not a number.
DRAWCORE_API uint16_t BrushStyleAddLines(TableStruct*, const char* name, const BrushLine* lines, int count);
