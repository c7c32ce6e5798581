// Text graphics (kGraphicText).
#pragma once

#include "orlo/host/api.h"
#include "orlo/host/records.h"

// Sets the text, which is copied, and its position: the left end of its baseline. height is the height of a capital
// letter in drawing units; 0 or less leaves it unchanged. If width is above 0, the text is stretched to that length, in
// drawing units. angle is in radians. Lines are separated by '\n'. Returns 0, and changes nothing, if the graphic is
// not a text or a number is not finite.
// Called: when the Text page opens, for its preview; width and angle are 0.
// Stub: return 0. Lost: the preview of the Text page; nothing, if the database has no texts.
// Failure: the result is ignored; the preview is empty.
DRAWCORE_API int TextSetVWHAEx(GraphicStruct* graphic, VertexStruct* position, double width, double height,
                               double angle, const char* text);
// Lays out the text again after its font or justification has changed. reserved is 0.
// Called: after the preview of the Text page has changed.
// Stub: do nothing. Lost: nothing, if texts are laid out when they are drawn.
DRAWCORE_API void TextExternalJustify(GraphicStruct* graphic, int reserved);
