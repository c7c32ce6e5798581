// Reads and validates the variables of the units table.
#include "drawcore/src/tables/unit_variables.h"

#include <algorithm>

#include "drawcore/include/drawcore/units.h"

namespace drawcore {

namespace {

constexpr int kMaxDigits = 12;

int IntegerVariable(const Table& units, uint16_t variable, int otherwise) {
    const int* value = units.Variable<int>(variable);
    return value ? *value : otherwise;
}

// Returns the value of a variable as an enumerator from first to last.
template <class System>
System SystemOf(const Table& units, uint16_t variable, System first, System last, System otherwise) {
    const auto number = static_cast<System>(IntegerVariable(units, variable, static_cast<int>(otherwise)));
    return number >= first && number <= last ? number : otherwise;
}

} // namespace

void StoreUnits(const UnitSettings& settings, Table& units) {
    units.SetVariable(kUnitDrawing, settings.drawingUnit);
    units.SetVariable(kUnitMillimeter, std::string("mm"));
    units.SetVariable(kUnitTextSize, settings.textSizeUnit);
    units.SetVariable(kUnitPenWidth, settings.penWidthUnit);
    units.SetVariable(kUnitLinearSystem, static_cast<int>(settings.lengthSystem));
    units.SetVariable(kUnitLinearDigits, settings.lengthDigits);
    units.SetVariable(kUnitAngularSystem, static_cast<int>(settings.angleSystem));
    units.SetVariable(kUnitAngularDigits, settings.angleDigits);
}

const LengthUnit* UnitOfVariable(const Table& units, uint16_t variable) {
    const std::string* name = units.Variable<std::string>(variable);
    return name ? FindLengthUnit(*name) : nullptr;
}

LengthFormat LengthFormatOf(const Table& units) {
    const UnitSettings defaults;
    LengthFormat format;
    format.system =
        SystemOf(units, kUnitLinearSystem, LengthSystem::Scientific, LengthSystem::Fractional, defaults.lengthSystem);
    format.digits = std::clamp(IntegerVariable(units, kUnitLinearDigits, defaults.lengthDigits), 0, kMaxDigits);
    return format;
}

AngleFormat AngleFormatOf(const Table& units) {
    const UnitSettings defaults;
    AngleFormat format;
    format.system =
        SystemOf(units, kUnitAngularSystem, AngleSystem::Degrees, AngleSystem::Bearings, defaults.angleSystem);
    format.digits = std::clamp(IntegerVariable(units, kUnitAngularDigits, defaults.angleDigits), 0, kMaxDigits);
    return format;
}

} // namespace drawcore
