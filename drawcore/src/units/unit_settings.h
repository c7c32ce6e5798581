// The unit settings of a drawing as its units table holds them.
#pragma once

#include <string>

#include "drawcore/src/tables/table.h"
#include "drawcore/src/units/angle_text.h"
#include "drawcore/src/units/length_text.h"
#include "drawcore/src/units/length_unit.h"

namespace drawcore {

struct UnitSettings {
    std::string drawingUnit = "mm";
    std::string textSizeUnit = "mm";
    std::string penWidthUnit = "mm";
    LengthSystem lengthSystem = LengthSystem::Decimal;
    int lengthDigits = 4;
    AngleSystem angleSystem = AngleSystem::Degrees;
    int angleDigits = 4;

    void Store(Table& units) const;
};

// The unit that a string variable names; null if there isn't one, or none of that name.
const LengthUnit* UnitOfVariable(const Table& units, uint16_t variable);

// How lengths and angles are written; what a variable doesn't say, or says wrongly, is as in new drawings.
LengthFormat LengthFormatOf(const Table& units);
AngleFormat AngleFormatOf(const Table& units);

} // namespace drawcore
