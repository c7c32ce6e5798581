// Numbers as text.
#pragma once

#include "orlo/host/api.h"
#include "orlo/host/records.h"

// Number at the start of the text, after blanks; *end is the first character after it (the text itself if there is no
// number, or none that a double holds). The decimal mark is the host's, here and in all other texts.
// A host may calculate: the reference database takes the longest calculation with + - * / and brackets that comes first, so
// that of "2*" it takes the 2. context is always 0.
DRAWCORE_API double StringToDouble(int context, const char* text, char** end);

// Writes value with that many significant digits; exponentForm 1: as mantissa and exponent.
// The buffer has at least 32 bytes. context and reserved are always 0, trim always 1: no trailing zeros.
DRAWCORE_API void DoubleToString(int context, double value, int digits, char* buffer, int reserved,
                                 int exponentForm, int trim);

// A length as text and back. number: the variable of the units table that says what the number is: kUnitDrawing a length in
// drawing units; kUnitMillimeter, kUnitTextSize, kUnitPenWidth a length on paper, in millimetres whatever unit the text is in.
// display: the variable that names the unit of the text, and of a text without a unit; 0 is the number's own variable.
// A text that is not wholly a length gives 0 and leaves the value alone. Where the host calculates, a unit at the end alone
// counts for the whole text ("100+50 mm" is 150 mm); among others with units, a number without one is in the display's ("2 ft
// + 3"). reserved is 0, suffix is 1: the unit's name follows the number.
DRAWCORE_API int UnitsTextToNumericEx(TableStruct* units, uint16_t number, uint16_t display, const char* text,
                                      double* value);
DRAWCORE_API int UnitsNumericToTextEx(TableStruct* units, uint16_t display, uint16_t number, double value,
                                      char* buffer, int size, int reserved, int suffix);

// A drawing scale ("1 in = 1 ft", "1 : 48") as a factor; 0.0 if the text is not a scale. And back.
DRAWCORE_API double UnitsGetScaleValue(TableStruct* units, const char* text);
DRAWCORE_API int UnitsMakeScaleString(TableStruct* units, double scale, char* buffer, int size);

// Millimetres of the unit that the variable names. 0, with the value left alone, if it names none.
DRAWCORE_API int UnitsGetLUnitValue(TableStruct* units, uint16_t variable, double* value);
// How the drawing writes angles: 0 degrees, 1 degrees, minutes and seconds, 2 grads, 3 radians, 4 bearings.
DRAWCORE_API uint16_t UnitsGetAngularSystem(TableStruct* units);
