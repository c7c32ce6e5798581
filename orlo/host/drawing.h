// Drawings and their named tables.
#pragma once

#include "orlo/host/api.h"
#include "orlo/host/records.h"

// The table of that name ("_LineStyles_", "_BrushStyles_", ...), the drawing's own; null if there is none.
DRAWCORE_API TableStruct* DrawingGetTable(DrawingStruct*, const char* name);

// Length text to drawing units and back, in the drawing's own unit settings. A number without a unit is in drawing units, and
// so it is written. A text that is not wholly a length gives 0 and leaves the value alone.
// kind: 0 a length, 1 a text size.
DRAWCORE_API int DrawingStdTextToNumeric(DrawingStruct*, const char* text, double* value, int kind);
DRAWCORE_API int DrawingStdNumericToText(DrawingStruct*, double value, char* buffer, int size, int kind);
