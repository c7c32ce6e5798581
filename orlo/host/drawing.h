// Drawings: their named tables, and lengths and angles as text.
//
// Functions that parse a text return 0, and leave *value unchanged, unless the whole text is a valid length, angle or
// scale. Functions that write a text return 0 if it does not fit into the buffer; size is in bytes, including the NUL.
#pragma once

#include "orlo/host/api.h"
#include "orlo/host/records.h"

// Returns the table with the given name (kTableLineStyles, kTableBrushStyles, ...), which the drawing owns, or null if
// there is no such table.
// Called: by pages, for the current drawing.
// Failure: null: lists that show the table are empty.
DRAWCORE_API TableStruct* DrawingGetTable(DrawingStruct* drawing, const char* name);

// Convert a length between text and drawing units, using the unit settings of the drawing. A number without a unit is
// in drawing units, whether it is parsed or written. kind is 0 for a length and 1 for a text size. In a drawing in
// paper space, a text size is in millimeters, and its text is in the unit of text sizes (kUnitTextSize).
// Called: when a field with a pen width in world space, a text height or another length is shown, checked or read.
// Failure: a text that cannot be parsed is rejected with a beep or a message; the field of a length that cannot be
// written is blank.
DRAWCORE_API int DrawingStdTextToNumeric(DrawingStruct* drawing, const char* text, double* value, int kind);
DRAWCORE_API int DrawingStdNumericToText(DrawingStruct* drawing, double value, char* buffer, int size, int kind);

// Convert an angle between text and radians. A number without a unit is in the unit of the drawing's angular system:
// degrees, grads or radians. reserved is 0.
// Called: when a field with an angle is shown or read.
// Failure: a text that cannot be parsed is rejected with a beep or a message, and the property is not changed.
DRAWCORE_API int DrawingStdTextToAngle(DrawingStruct* drawing, const char* text, double* value, int reserved);
DRAWCORE_API int DrawingStdAngleToText(DrawingStruct* drawing, double value, char* buffer, int size, int reserved);

// Get and set the scale of the drawing on paper as text. DrawingGetScaleString copies the text that was set last.
// DrawingSetScaleString returns 0, and leaves the scale unchanged, if the text is not a scale.
// Called: by DDX_CBVarScale, which the library's pages do not use.
// Stub: return 0. Lost: DDX_CBVarScale.
// Failure: 0: the field is blank, or the scale is not changed.
DRAWCORE_API int DrawingGetScaleString(DrawingStruct* drawing, char* buffer, int size);
DRAWCORE_API int DrawingSetScaleString(DrawingStruct* drawing, const char* text);

// Returns the coordinate space of the drawing's lengths: kSpaceWorld, kSpacePaper or kSpaceDevice.
// Called: when the list of text heights is filled.
DRAWCORE_API uint16_t DrawingGetCoordSpace(DrawingStruct* drawing);
// Convert a length in the given coordinate space between text and number. unit is the variable of the units table that
// names the unit of the text: kUnitDrawing in world space, kUnitTextSize for a text size on paper. Return 0 if
// coordSpace is kSpaceDevice.
// Called: when the list of text heights is filled or read.
// Failure: 0: the height is not listed.
DRAWCORE_API int DrawingStdTextToNumericEx(DrawingStruct* drawing, const char* text, double* value, uint16_t coordSpace,
                                           uint16_t unit);
DRAWCORE_API int DrawingStdNumericToTextEx(DrawingStruct* drawing, double value, char* buffer, int size,
                                           uint16_t coordSpace, uint16_t unit);
