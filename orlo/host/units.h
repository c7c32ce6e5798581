// Numbers, lengths and scales as text. All texts use the host's decimal mark.
//
// Functions of type int that parse a text return 0, and leave *value unchanged, unless the whole text is a valid
// length. Those that write a text return 0 if it does not fit into the buffer; size is in bytes, including the NUL.
#pragma once

#include "orlo/host/api.h"
#include "orlo/host/records.h"

// Returns the number at the start of the text, skipping leading blanks. Sets *end to the first character after the
// number, or to `text` if there is no number or it exceeds the range of a double. context is 0.
//
// A host may evaluate calculations. The reference database evaluates the longest valid calculation at the start of the
// text, with the operators + - * / and parentheses; in "2*", that is the 2.
// Called: when a field with a number is read.
// Failure: text after the number is an error: a message appears, and nothing is written.
DRAWCORE_API double StringToDouble(int context, const char* text, char** end);

// Writes value with the given number of significant digits, in exponential notation if exponentForm is 1. The buffer
// has at least 32 bytes. context and reserved are 0. trim is 1: trailing zeros are omitted.
// Called: when a field with a number is shown.
DRAWCORE_API void DoubleToString(int context, double value, int digits, char* buffer, int reserved, int exponentForm,
                                 int trim);

// Convert a length between text and number.
//
// number is the variable of the units table that determines the unit of the number: kUnitDrawing means a length in
// drawing units; kUnitMillimeter, kUnitTextSize and kUnitPenWidth mean a length on paper, always in millimeters.
// display is the variable that names the unit of the text, which also applies if the text has no unit; 0 means the same
// variable as number. Note that the two functions have these arguments in opposite order.
//
// If the host evaluates calculations, a single unit at the end applies to the whole text: "100+50 mm" is 150 mm. If
// other numbers in the text have units, a number without a unit is in the unit of display ("2 ft + 3").
//
// reserved is 0. If suffix is 1, the name of the unit follows the number; if it is 0, only the number is written.
// Called: when a field or a list with lengths on paper is shown or read.
// Failure: a text that cannot be parsed is rejected with a beep or a message; the field of a length that cannot be
// written is blank.
DRAWCORE_API int UnitsTextToNumericEx(TableStruct* units, uint16_t number, uint16_t display, const char* text,
                                      double* value);
DRAWCORE_API int UnitsNumericToTextEx(TableStruct* units, uint16_t display, uint16_t number, double value, char* buffer,
                                      int size, int reserved, int suffix);

// Returns the factor of a drawing scale ("1 in = 1 ft", "1 : 48"), or 0.0 if the text is not a scale.
// Called: by DDX_CBScale and DDX_CBVarScale, which the library's pages do not use.
// Stub: return 0.0. Lost: DDX_CBScale and DDX_CBVarScale.
DRAWCORE_API double UnitsGetScaleValue(TableStruct* units, const char* text);
// Writes the factor of a drawing scale as text. Returns 0 if the text does not fit into the buffer.
// Called: by DDX_CBScale, which the library's pages do not use.
// Stub: return 0. Lost: DDX_CBScale.
DRAWCORE_API int UnitsMakeScaleString(TableStruct* units, double scale, char* buffer, int size);

// Stores the length, in millimeters, of the unit that the variable names. Returns 0 if the variable does not name a
// unit.
// Called: by DDX_TextPaperWorld, which the library's pages do not use.
// Stub: return 0. Lost: DDX_TextPaperWorld.
DRAWCORE_API int UnitsGetLUnitValue(TableStruct* units, uint16_t variable, double* value);
// Returns the angular system of the drawing: 0 degrees; 1 degrees, minutes and seconds; 2 grads; 3 radians; 4 bearings.
// Called: when the Brush page opens, and when its arrows change the angle.
DRAWCORE_API uint16_t UnitsGetAngularSystem(TableStruct* units);
