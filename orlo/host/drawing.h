// Drawings and their named tables.
#pragma once

#include "orlo/host/api.h"
#include "orlo/host/records.h"

// The table of that name (kTableLineStyles, kTableBrushStyles, ...), the drawing's own; null if there isn't one.
DRAWCORE_API TableStruct* DrawingGetTable(DrawingStruct*, const char* name);

// Length text to drawing units and back, in the drawing's own unit settings. A number without a unit is in drawing units, and
// is written that way. A text that is not wholly a length gives 0 and leaves the value alone.
// kind: 0 a length, 1 a text size: in a drawing on paper in millimetres, the text with the unit of text sizes.
DRAWCORE_API int DrawingStdTextToNumeric(DrawingStruct*, const char* text, double* value, int kind);
DRAWCORE_API int DrawingStdNumericToText(DrawingStruct*, double value, char* buffer, int size, int kind);

// Angle text to radians and back, in the drawing's angular system: degrees, grads or radians for a number without a unit. A
// text that is not wholly an angle gives 0 and leaves the value alone. reserved is 0.
DRAWCORE_API int DrawingStdTextToAngle(DrawingStruct*, const char* text, double* value, int reserved);
DRAWCORE_API int DrawingStdAngleToText(DrawingStruct*, double value, char* buffer, int size, int reserved);

// The scale of the drawing on paper, in the words that it was set in. Setting gives 0, with nothing changed, for a text that
// is not a scale.
DRAWCORE_API int DrawingGetScaleString(DrawingStruct*, char* buffer, int size);
DRAWCORE_API int DrawingSetScaleString(DrawingStruct*, const char* text);

// The space that the drawing's lengths are in: kSpaceWorld, kSpacePaper or kSpaceDevice.
DRAWCORE_API uint16_t DrawingGetCoordSpace(DrawingStruct*);
// The same conversions for a length in that space; unit is the variable of the units table that names the unit of the text:
// kUnitDrawing for the world, kUnitTextSize for a text size on paper. 0 in the space of a device.
DRAWCORE_API int DrawingStdTextToNumericEx(DrawingStruct*, const char* text, double* value,
                                           uint16_t coordSpace, uint16_t unit);
DRAWCORE_API int DrawingStdNumericToTextEx(DrawingStruct*, double value, char* buffer, int size,
                                           uint16_t coordSpace, uint16_t unit);
