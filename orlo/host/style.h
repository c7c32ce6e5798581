// Line styles and brush styles: entries of the tables kTableLineStyles and kTableBrushStyles.
#pragma once

#include "orlo/host/api.h"
#include "orlo/host/records.h"

// Number of items of the style's dash list, at most 8: of a longer one the first 8 count. 0 or 1 is a solid line.
DRAWCORE_API int LineStyleGetDLItems(TableStruct*, uint16_t id);
// Copies that many items (drawing units at scale 1): a positive item is a dash, a negative one a gap, 0 a dot. 0, with
// nothing copied, if there is no such style.
DRAWCORE_API int LineStyleGetPattern(TableStruct*, uint16_t id, double* pattern);

// What a brush style is. Set: the style is a vector pattern; clear: a bitmap.
ORLO_CONSTANT uint16_t kBrushVector = 1;
// The second bit says of a vector pattern that it has lines, and of a bitmap that it takes the brush colour.
ORLO_CONSTANT uint16_t kBrushHasLines = 2;
ORLO_CONSTANT uint16_t kBrushTakesColor = 2;

// One family of lines of a vector pattern; the host's.
typedef struct BrushPatternStruct BrushPatternStruct;

// 0 if there is no such style.
DRAWCORE_API uint16_t BrushStyleGetFlags(TableStruct*, uint16_t id);
// Walk over the families of lines of a style; they belong to the style. The cookie starts at 0. Null at the end.
DRAWCORE_API const BrushPatternStruct* BrushStyleGetFirstPattern(TableStruct*, uint16_t id, int* cookie);
DRAWCORE_API const BrushPatternStruct* BrushStyleGetNextPattern(TableStruct*, uint16_t id, int* cookie);
// Direction of the lines (radians), a point of the first one, the offset to the next one along and across the lines
// (drawing units at brush scale 1), and the first 8 items of the dash list.
DRAWCORE_API void BrushPatternGetData(const BrushPatternStruct*, double* angle, double* baseX, double* baseY,
                                      double* along, double* spacing, int* dashCount, double* dashes);
