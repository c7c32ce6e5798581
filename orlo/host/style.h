// Line styles: entries of the table "_LineStyles_".
#pragma once

#include "orlo/host/api.h"
#include "orlo/host/records.h"

// Number of items of the style's dash list; 0 or 1 for a solid line.
DRAWCORE_API int LineStyleGetDLItems(TableStruct*, uint16_t id);
// Copies the dash list (drawing units at scale 1): a positive item is a dash, a negative one a gap.
DRAWCORE_API int LineStyleGetPattern(TableStruct*, uint16_t id, double* pattern);
