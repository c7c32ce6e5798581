// The property tables of graphics: named values with limits, in the forms of the OLE Automation variant types.
//
// PropGet and PropSet give 1 on success. Whole numbers are given and taken in any whole-number form that holds the value;
// lengths, scales and angles as float or double; texts as text; anything else is refused with nothing changed. PropGet of
// a text gives back what the variable held before. PropSet refuses what is out of the property's limits.
#pragma once

#include "orlo/host/records.h"

namespace drawcore {

// Vertex lists, curves, groups: pen, brush, "Layer", "Info", "StyleTree".
extern const PropertyTable kShapeProperties;
// Texts: "PenColor", "TextFont", "TextSize", "TextStyle", "TextFormat", "Layer", "Info", "StyleTree".
extern const PropertyTable kTextProperties;
// Insertions: "PenColor" and "PenStyle" for what their blocks leave to them, "Layer", "Info", "StyleTree".
extern const PropertyTable kInsertProperties;

} // namespace drawcore
