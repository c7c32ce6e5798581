// Font heights as text in the units of a drawing. Internal to the library.
#pragma once

#include "orlo/host/records.h"

constexpr int kFontSizeTextSize = 0x100;

// Both give 0 without a drawing, in the coordinate space 2, which has no lengths, and if the text or the number cannot
// be converted; the value is then left alone. coordSpace as of DrawingGetCoordSpace.
int TextToFontSize(DrawingStruct* drawing, uint16_t coordSpace, const char* text, double* value);
int FontSizeToText(DrawingStruct* drawing, uint16_t coordSpace, double value, char* buffer, int size);
