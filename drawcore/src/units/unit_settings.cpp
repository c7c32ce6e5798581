// Derives units from the variables of a header.
#include "drawcore/src/units/unit_settings.h"

#include <algorithm>

namespace drawcore {

namespace {

// Returns whether the drawing uses feet and inches: engineering and architectural lengths imply inches unless the
// header declares another unit.
bool HasFeetAndInches(const dxf::Header& header) {
    return header.lengthFormat == 3 || header.lengthFormat == 4;
}

} // namespace

UnitSettings UnitsOf(const dxf::Header& header) {
    const LengthUnit* unit = LengthUnitOfDxf(header.unit);
    UnitSettings settings;
    if (unit)
        settings.drawingUnit = unit->name;
    else if (header.metric == 0 || HasFeetAndInches(header))
        settings.drawingUnit = "in";
    const bool imperial = settings.drawingUnit == "in" || settings.drawingUnit == "ft";
    if (imperial) settings.textSizeUnit = settings.penWidthUnit = "in";
    settings.lengthSystem = static_cast<LengthSystem>(header.lengthFormat);
    settings.lengthDigits = std::clamp(header.lengthDigits, 0, 8);
    settings.angleSystem = static_cast<AngleSystem>(header.angleFormat);
    settings.angleDigits = std::clamp(header.angleDigits, 0, 8);
    return settings;
}

} // namespace drawcore
