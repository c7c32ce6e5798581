// Creates line styles. Functions that read them are in orlo/host/style.h.
#pragma once

#include "orlo/host/api.h"
#include "orlo/host/records.h"

// Adds a style to a table kTableLineStyles, with 64 items at most; without any, it is solid. A positive item is a dash,
// a negative one a gap, 0 a dot, in drawing units at pen scale 1. Returns its identifier, or 0 if the name is invalid
// or already exists, or if an item is not finite.
DRAWCORE_API uint16_t LineStyleAdd(TableStruct*, const char* name, const char* description, const double* pattern,
                                   int count);
