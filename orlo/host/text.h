// Text graphics (type 6).
#pragma once

#include "orlo/host/api.h"
#include "orlo/host/records.h"

// Sets where and what a text is. The left end of the baseline is at the vertex; height is that of a capital letter, in
// drawing units (0 or less: unchanged); with width above 0 the text is stretched to that length; angle in radians. Lines
// of the text end with '\n'. 0, with nothing changed, if the graphic is not a text or a number is not finite.
DRAWCORE_API int TextSetVWHAEx(GraphicStruct*, VertexStruct*, double width, double height, double angle,
                               const char* text);
// Lays the text out again after a change of its font or justification. reserved is 0.
DRAWCORE_API void TextExternalJustify(GraphicStruct*, int reserved);
