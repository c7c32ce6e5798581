// The unit settings that the header of a DXF drawing stands for.
#pragma once

#include "drawcore/src/dxf/document.h"
#include "drawcore/src/units/unit_settings.h"

namespace drawcore {

UnitSettings UnitsOf(const dxf::Header& header);

} // namespace drawcore
