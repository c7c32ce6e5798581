// Numbers as text.
#pragma once

#include "orlo/host/api.h"
#include "orlo/host/records.h"

// Number at the start of the text; *end is the first character behind it (the text itself if there is none).
// context is always 0.
DRAWCORE_API double StringToDouble(int context, const char* text, char** end);

// Writes value with that many significant digits; exponentForm 1: as mantissa and exponent.
// The buffer takes at least 32 bytes. context and reserved are always 0, trim always 1: no trailing zeros.
DRAWCORE_API void DoubleToString(int context, double value, int digits, char* buffer, int reserved, int exponentForm,
                                 int trim);

// Text to a number in the unit that a variable of the units table names (kUnitPenWidth), and back.
// flags and reserved are always 0, suffix is always 1: the unit's name follows the number.
DRAWCORE_API int UnitsTextToNumericEx(TableStruct* units, uint16_t unitVariable, int flags, const char* text,
                                      double* value);
DRAWCORE_API int UnitsNumericToTextEx(TableStruct* units, int flags, uint16_t unitVariable, double value, char* buffer,
                                      int size, int reserved, int suffix);

// A drawing scale ("1 in = 1 ft", "1 : 48") as a factor; 0.0 if the text is no scale. And back.
DRAWCORE_API double UnitsGetScaleValue(TableStruct* units, const char* text);
DRAWCORE_API int UnitsMakeScaleString(TableStruct* units, double scale, char* buffer, int size);

// Variables of a units table that hold the name of a unit.
constexpr uint16_t kUnitTextSize = 0x5035;
constexpr uint16_t kUnitPenWidth = 0x5036;
