// Text graphics (kGraphicText).
#pragma once

#include "orlo/host/api.h"
#include "orlo/host/records.h"

// Sets the text and its position. The left end of the baseline is at `position`. height is the height of a capital
// letter in drawing units; 0 or less leaves it unchanged. If width is above 0, the text is stretched to that length.
// angle is in radians. Lines are separated by '\n'. Returns 0, and changes nothing, if the graphic is not a text or a
// number is not finite.
DRAWCORE_API int TextSetVWHAEx(GraphicStruct* graphic, VertexStruct* position, double width, double height,
                               double angle, const char* text);
// Lays out the text again after its font or justification has changed. reserved is 0.
DRAWCORE_API void TextExternalJustify(GraphicStruct* graphic, int reserved);
