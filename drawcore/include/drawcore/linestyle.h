// Making line styles, for host programs; reading them is in orlo/host/style.h.
#pragma once

#include "orlo/host/api.h"
#include "orlo/host/records.h"

// Adds a style to a table "_LineStyles_": a positive item is a dash, a negative one a gap, 0 a dot, in drawing units
// at pen scale 1; count 0 is a solid line, at most 64. Returns the identifier; 0 if the name is bad or taken or an item is
// not a number.
DRAWCORE_API uint16_t LineStyleAdd(TableStruct*, const char* name, const char* description,
                                   const double* pattern, int count);
