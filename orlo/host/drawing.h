// Drawings: their named tables, and lengths and angles as text.
//
// The functions that read a text return 0 if it is not a length (an angle, a scale) as a whole, and leave *value
// unchanged. Those that write a text return 0 if it does not fit into the buffer; size is in bytes, including the NUL.
#pragma once

#include "orlo/host/api.h"
#include "orlo/host/records.h"

// Returns the table with that name (kTableLineStyles, kTableBrushStyles, ...), or null if there is none. It belongs to
// the drawing.
// Called: by pages, for the current drawing.
// Failure: null: the list of that table is empty.
DRAWCORE_API TableStruct* DrawingGetTable(DrawingStruct* drawing, const char* name);

// Convert a length between text and drawing units, by the unit settings of the drawing. A number without a unit is in
// drawing units, both when read and when written. kind 0: a length. kind 1: a text size; in a drawing in paper space
// the value is in millimeters and the text in the unit of text sizes.
// Called: when a field with a pen width in world space, a text height or another length is shown, checked or read.
// Failure: a text that cannot be read is rejected with a beep or a message; a length without a text leaves its field
// blank.
DRAWCORE_API int DrawingStdTextToNumeric(DrawingStruct* drawing, const char* text, double* value, int kind);
DRAWCORE_API int DrawingStdNumericToText(DrawingStruct* drawing, double value, char* buffer, int size, int kind);

// Convert an angle between text and radians. A number without a unit is in the angular system of the drawing: degrees,
// grads or radians. reserved is 0.
// Called: when a field with an angle is shown or read.
// Failure: a text that cannot be read is rejected with a beep or a message; the property is not changed.
DRAWCORE_API int DrawingStdTextToAngle(DrawingStruct* drawing, const char* text, double* value, int reserved);
DRAWCORE_API int DrawingStdAngleToText(DrawingStruct* drawing, double value, char* buffer, int size, int reserved);

// Get and set the scale of the drawing on paper, as the text that it was set with. Setting returns 0, and the scale
// stays, if the text is not a scale.
// Called: by DDX_CBVarScale and DDX_TextPaperWorld, which the library's pages do not use.
// Stub: return 0. Lost: DDX_CBVarScale and DDX_TextPaperWorld.
// Failure: 0: the field is blank; the scale stays.
DRAWCORE_API int DrawingGetScaleString(DrawingStruct* drawing, char* buffer, int size);
DRAWCORE_API int DrawingSetScaleString(DrawingStruct* drawing, const char* text);

// Returns the space of the drawing's lengths: kSpaceWorld, kSpacePaper or kSpaceDevice.
// Called: when the list of text heights is filled.
DRAWCORE_API uint16_t DrawingGetCoordSpace(DrawingStruct* drawing);
// Convert a length in the given space between text and number. unit is the variable of the units table that names the
// unit of the text: kUnitDrawing in world space, kUnitTextSize for a text size on paper. Return 0 in kSpaceDevice.
// Called: when the list of text heights is filled or read.
// Failure: 0: the height is not listed.
DRAWCORE_API int DrawingStdTextToNumericEx(DrawingStruct* drawing, const char* text, double* value, uint16_t coordSpace,
                                           uint16_t unit);
DRAWCORE_API int DrawingStdNumericToTextEx(DrawingStruct* drawing, double value, char* buffer, int size,
                                           uint16_t coordSpace, uint16_t unit);
