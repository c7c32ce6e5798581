#include "drawcore/src/units/unit_settings.h"

#include <algorithm>

#include "drawcore/include/drawcore/units.h"
#include "orlo/host/units.h"

namespace drawcore {

void UnitSettings::Store(Table& units) const {
    units.SetVariable(kUnitDrawing, drawingUnit);
    units.SetVariable(kUnitMillimetre, std::string("mm"));
    units.SetVariable(kUnitTextSize, textSizeUnit);
    units.SetVariable(kUnitPenWidth, penWidthUnit);
    units.SetVariable(kUnitFontName, fontName);
    units.SetVariable(kUnitLinearDigits, linearDigits);
}

const LengthUnit* UnitOfVariable(const Table& units, uint16_t variable) {
    const std::string* name = units.Variable<std::string>(variable);
    return name ? FindLengthUnit(*name) : nullptr;
}

int LinearDigits(const Table& units) {
    const int* digits = units.Variable<int>(kUnitLinearDigits);
    return digits ? std::clamp(*digits, 0, 12) : UnitSettings().linearDigits;
}

} // namespace drawcore
