// Unit settings as variables of the units table of a drawing.
#pragma once

#include "drawcore/src/tables/table.h"
#include "drawcore/src/units/unit_settings.h"

namespace drawcore {

// Sets the variables of the table.
void StoreUnits(const UnitSettings& settings, Table& units);

// The unit that a string variable names; null if there isn't one, or none of that name.
const LengthUnit* UnitOfVariable(const Table& units, uint16_t variable);

// How lengths and angles are written; what a variable doesn't say, or says wrongly, is as in new drawings.
LengthFormat LengthFormatOf(const Table& units);
AngleFormat AngleFormatOf(const Table& units);

} // namespace drawcore
