// Numbers, lengths and scales as text. The decimal mark is the host's, in all texts.
//
// The functions that return int return 0 if a text is not a length as a whole, or does not fit into the buffer (size is
// in bytes, including the NUL); *value is then unchanged.
#pragma once

#include "orlo/host/api.h"
#include "orlo/host/records.h"

// Returns the number at the start of the text; leading blanks are skipped. *end is set to the first character after the
// number, or to `text` if there is no number or it does not fit into a double. context is 0.
//
// A host may evaluate calculations. The reference database reads the longest valid calculation with + - * / and
// parentheses at the start: in "2*" that is the 2.
// Called: when a field with a number is read.
// Failure: text after the number is an error: a message appears, and nothing is written.
DRAWCORE_API double StringToDouble(int context, const char* text, char** end);

// Writes value with that many significant digits, as mantissa and exponent if exponentForm is 1. The buffer has at
// least 32 bytes. context and reserved are 0; trim is 1: trailing zeros are omitted.
// Called: when a field with a number is shown.
DRAWCORE_API void DoubleToString(int context, double value, int digits, char* buffer, int reserved, int exponentForm,
                                 int trim);

// Convert a length between text and number.
//
// number is the variable of the units table that defines what the number is: kUnitDrawing is a length in drawing units,
// kUnitMillimeter, kUnitTextSize and kUnitPenWidth are lengths on paper, always in millimeters. display is the variable
// that names the unit of the text, and of a text without a unit; 0 is the same as number. Mind the order of the
// arguments.
//
// Where the host evaluates calculations, a single unit at the end applies to the whole text: "100+50 mm" is 150 mm. If
// other numbers have units, a number without one is in the unit of display ("2 ft + 3").
//
// reserved is 0. suffix is 1: the name of the unit follows the number; 0: the number only.
// Called: when a field or a list with lengths on paper is shown or read.
// Failure: a text that cannot be read is rejected with a beep or a message; a length without a text leaves its field
// blank.
DRAWCORE_API int UnitsTextToNumericEx(TableStruct* units, uint16_t number, uint16_t display, const char* text,
                                      double* value);
DRAWCORE_API int UnitsNumericToTextEx(TableStruct* units, uint16_t display, uint16_t number, double value, char* buffer,
                                      int size, int reserved, int suffix);

// Returns the factor of a drawing scale ("1 in = 1 ft", "1 : 48"), or 0.0 if the text is not a scale.
// Called: by DDX_CBScale and DDX_CBVarScale, which the library's pages do not use.
// Stub: return 0.0. Lost: DDX_CBScale and DDX_CBVarScale.
DRAWCORE_API double UnitsGetScaleValue(TableStruct* units, const char* text);
// Writes a factor as a drawing scale.
// Called: by DDX_CBScale, which the library's pages do not use.
// Stub: return 0. Lost: DDX_CBScale.
DRAWCORE_API int UnitsMakeScaleString(TableStruct* units, double scale, char* buffer, int size);

// Stores the number of millimeters in the unit that the variable names. Returns 0 if it does not name a unit.
// Called: by DDX_TextPaperWorld, which the library's pages do not use.
// Stub: return 0. Lost: DDX_TextPaperWorld.
DRAWCORE_API int UnitsGetLUnitValue(TableStruct* units, uint16_t variable, double* value);
// Returns the angular system of the drawing: 0 degrees; 1 degrees, minutes and seconds; 2 grads; 3 radians; 4 bearings.
// Called: when the Brush page opens.
DRAWCORE_API uint16_t UnitsGetAngularSystem(TableStruct* units);
