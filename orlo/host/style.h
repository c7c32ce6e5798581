// Line styles and brush styles: entries of the tables kTableLineStyles and kTableBrushStyles.
#pragma once

#include "orlo/host/api.h"
#include "orlo/host/records.h"

// Returns the number of items in the style's dash list, 0 to 8. Only the first 8 items of a longer list are used. A
// list of 0 or 1 items is a solid line.
// Called: when a sample of a line style is drawn.
// Stub: return 0, if LineStyleGetPattern is a stub too. Lost: dash patterns that are scaled to fit their samples.
DRAWCORE_API int LineStyleGetDLItems(TableStruct* styles, uint16_t id);
// Copies as many items as LineStyleGetDLItems returns, in drawing units at pen scale 1: a positive item is a dash, a
// negative one a gap, 0 a dot. Returns 0, and copies nothing, if there is no such style.
// Called: when a sample of a line style is drawn.
// Stub: return 0. Lost: dash patterns that are scaled to fit their samples.
// Failure: the result is ignored.
DRAWCORE_API int LineStyleGetPattern(TableStruct* styles, uint16_t id, double* pattern);

// Flags of a brush style.
ORLO_CONSTANT uint16_t kBrushVector = 1;     // set: a vector pattern; clear: a bitmap
ORLO_CONSTANT uint16_t kBrushHasLines = 2;   // of a vector pattern: it has lines
ORLO_CONSTANT uint16_t kBrushTakesColor = 2; // of a bitmap: it is drawn in the brush color

// One family of parallel lines in a vector pattern. Defined by the host.
typedef struct BrushPatternStruct BrushPatternStruct;

// Returns the flags, or 0 if there is no such style.
// Called: when a brush style is drawn or selected.
DRAWCORE_API uint16_t BrushStyleGetFlags(TableStruct* styles, uint16_t id);
// Iterate over the families of lines of a style, which owns them. Return null at the end. *cookie is 0 at the start.
// Called: when a sample of a hatch is drawn.
// Stub: return null. Lost: hatches that are scaled to fit their samples; nothing, if no style has kBrushHasLines.
DRAWCORE_API const BrushPatternStruct* BrushStyleGetFirstPattern(TableStruct* styles, uint16_t id, int* cookie);
DRAWCORE_API const BrushPatternStruct* BrushStyleGetNextPattern(TableStruct* styles, uint16_t id, int* cookie);
// Stores the values of a family of lines: the direction in radians, a point on the first line, the offset of the next
// line along and across the lines (in drawing units at brush scale 1), and the first 8 items of the dash list. dashes
// must have room for 8 items.
// Called: when a sample of a hatch is drawn.
// Stub: do nothing. Lost: nothing, if BrushStyleGetFirstPattern is a stub too.
DRAWCORE_API void BrushPatternGetData(const BrushPatternStruct* lines, double* angle, double* baseX, double* baseY,
                                      double* along, double* spacing, int* dashCount, double* dashes);
