// Values of properties as texts, in the form that the pages of the sheet show: "By Layer", "0.5 mm", "Color 12",
// "#FF7F00", "On", "Bold+Underline".
#pragma once

#include "orlo/host/api.h"
#include "orlo/host/records.h"

// Stores the text of a property of a graphic (at most size bytes, including the NUL). Lengths and angles are in the
// units of its drawing. Returns 0, and stores an empty text, if the graphic has no such property.
DRAWCORE_API int GraphicGetPropertyText(GraphicStruct*, const char* property, char* buffer, int size);

// Stores the text for an integer value of a property: the name of a color, of a table entry or of a choice. The text
// for an entry that does not exist is its number, such as "#12". Returns 0, and stores an empty text, if there is no
// such property.
DRAWCORE_API int PropertyGetValueText(DrawingStruct*, const char* property, uint32_t value, char* buffer, int size);
