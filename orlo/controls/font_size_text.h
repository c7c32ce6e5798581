// Converts font heights to and from text in the units of a drawing. Internal to the library.
#pragma once

#include "orlo/host/records.h"

constexpr int kFontSizeTextSize = 0x100;

// Both return 0 and leave the result unchanged if there is no drawing, the coordinate space is 2, which has no lengths,
// or the text or number cannot be converted. coordSpace is the value returned by DrawingGetCoordSpace.
int TextToFontSize(DrawingStruct* drawing, uint16_t coordSpace, const char* text, double* value);
int FontSizeToText(DrawingStruct* drawing, uint16_t coordSpace, double value, char* buffer, int size);
