// Unit settings stored as variables in the units table of a drawing.
#pragma once

#include "drawcore/src/tables/table.h"
#include "drawcore/src/units/unit_settings.h"

namespace drawcore {

// Sets the variables of the table.
void StoreUnits(const UnitSettings& settings, Table& units);

// Returns the unit named by a string variable, or null if the variable or the unit does not exist.
const LengthUnit* UnitOfVariable(const Table& units, uint16_t variable);

// Return the formats of lengths and angles. Missing or invalid variables have the defaults of new drawings.
LengthFormat LengthFormatOf(const Table& units);
AngleFormat AngleFormatOf(const Table& units);

} // namespace drawcore
