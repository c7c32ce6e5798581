// The units of a drawing, and those that the header of a DXF drawing declares.
#pragma once

#include <string>

#include "drawcore/src/dxf/document.h"
#include "drawcore/src/units/angle_text.h"
#include "drawcore/src/units/length_text.h"

namespace drawcore {

struct UnitSettings {
    std::string drawingUnit = "mm";
    std::string textSizeUnit = "mm";
    std::string penWidthUnit = "mm";
    LengthSystem lengthSystem = LengthSystem::Decimal;
    int lengthDigits = 4;
    AngleSystem angleSystem = AngleSystem::Degrees;
    int angleDigits = 4;
};

UnitSettings UnitsOf(const dxf::Header& header);

} // namespace drawcore
