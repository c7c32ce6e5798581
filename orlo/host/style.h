// Line styles: entries of the table "_LineStyles_".
#pragma once

#include "orlo/host/api.h"
#include "orlo/host/records.h"

// Number of items of the style's dash list, at most 8: of a longer one the first 8 count. 0 or 1 is a solid line.
DRAWCORE_API int LineStyleGetDLItems(TableStruct*, uint16_t id);
// Copies that many items (drawing units at scale 1): a positive item is a dash, a negative one a gap, 0 a dot. 0, with
// nothing copied, if there is no such style.
DRAWCORE_API int LineStyleGetPattern(TableStruct*, uint16_t id, double* pattern);
