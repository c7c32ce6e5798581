// The property tables of graphics: named values with limits, as OLE Automation variant types.
//
// PropGet and PropSet return 1 on success. Integers are converted to any integer type that can represent the value;
// lengths, scales and angles are float or double; texts are text. Other types are rejected without a change. PropGet of
// a text frees the previous text in the variable. PropSet rejects values out of range.
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
// Insertions: "PenColor" and "PenStyle", which their blocks can inherit, "Layer", "Info", "StyleTree".
extern const PropertyTable kInsertProperties;

// std::monostate for a property of texts in a graphic that is not a text.
using StoredProperty = std::variant<std::monostate, int64_t, double, std::string>;
// Returns the stored value of a property by its index in kPropertyList. Unlike PropGet, it does not resolve markers and
// the default face.
StoredProperty GetStored(const Graphic& graphic, size_t property);
// Sets the stored value unless the graphic rejects it. Not recorded for undo.
void SetStored(Graphic& graphic, size_t property, const StoredProperty& value);

} // namespace drawcore
