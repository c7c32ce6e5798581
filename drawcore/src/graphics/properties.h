// The property tables of graphics: named values with limits, in the forms of the OLE Automation variant types.
//
// PropGet and PropSet give 1 on success. Whole numbers are given and taken in any whole-number form that holds the
// value; lengths, scales and angles as float or double; texts as text; anything else is refused with nothing changed.
// PropGet of a text gives back what the variable held before. PropSet refuses what is out of the property's limits.
#pragma once

#include <cstdint>
#include <string>
#include <variant>

#include "orlo/host/records.h"

namespace drawcore {

class Graphic;

// Vertex lists, curves, groups: pen, brush, "Layer", "Info", "StyleTree".
extern const PropertyTable kShapeProperties;
// Texts: "PenColor", "TextFont", "TextSize", "TextStyle", "TextFormat", "Layer", "Info", "StyleTree".
extern const PropertyTable kTextProperties;
// Insertions: "PenColor" and "PenStyle" for what their blocks leave to them, "Layer", "Info", "StyleTree".
extern const PropertyTable kInsertProperties;

// Nothing: a property of texts, of a graphic that is not a text.
using StoredProperty = std::variant<std::monostate, int64_t, double, std::string>;
// Returns what the graphic stores under a property, given by its place in kPropertyList. PropGet resolves markers and
// the default face; this function does not.
StoredProperty GetStored(const Graphic& graphic, size_t property);
// Sets it, unless the graphic rejects it. Not for undo.
void SetStored(Graphic& graphic, size_t property, const StoredProperty& value);

} // namespace drawcore
