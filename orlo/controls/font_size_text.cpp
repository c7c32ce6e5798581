// Converts font heights to and from text in the units of a drawing.

#include "orlo/controls/font_size_text.h"

#include "orlo/host/drawing.h"
#include "orlo/host/units.h"

namespace {

uint16_t UnitOf(uint16_t coordSpace) {
    return coordSpace == kSpaceWorld ? kUnitDrawing : kUnitTextSize;
}

} // namespace

int TextToFontSize(DrawingStruct* drawing, uint16_t coordSpace, const char* text, double* value) {
    if (!drawing || coordSpace == kSpaceDevice) return 0;
    return ::DrawingStdTextToNumericEx(drawing, text, value, coordSpace, UnitOf(coordSpace));
}

int FontSizeToText(DrawingStruct* drawing, uint16_t coordSpace, double value, char* buffer, int size) {
    if (!drawing || coordSpace == kSpaceDevice) return 0;
    return ::DrawingStdNumericToTextEx(drawing, value, buffer, size, coordSpace, UnitOf(coordSpace));
}
