// Conversion between text and numbers in the units of a drawing.

#include <cmath>

#include "drawcore/src/database/drawing.h"
#include "drawcore/src/tables/unit_variables.h"
#include "drawcore/src/units/length_text.h"
#include "drawcore/src/units/number_text.h"
#include "orlo/host/drawing.h"
#include "orlo/host/units.h"

namespace drawcore {

namespace {

// Returns the millimeters in the number 1: drawing units are converted, lengths on paper are always in millimeters.
double NumberUnit(uint16_t variable, const LengthUnit& unit) {
    return variable == kUnitDrawing ? unit.millimeters : 1.0;
}

// Returns the unit of the text: that of the display variable or, if it is 0, that of the number.
const LengthUnit* TextUnit(const Table& units, uint16_t display, uint16_t number) {
    return UnitOfVariable(units, display ? display : number);
}

// Copies text to the caller's buffer only if it fits, because a truncated number would be a different one.
int CopyIfFits(const std::string& text, char* buffer, int size) {
    if (text.empty() || !buffer || size <= 0 || text.size() >= static_cast<size_t>(size)) return 0;
    CopyText(text, buffer, size);
    return 1;
}

int TextToNumber(Table* units, uint16_t number, uint16_t display, const char* text, double* value) {
    if (!units || !text || !value) return 0;
    const LengthUnit* of = UnitOfVariable(*units, number);
    const LengthUnit* shown = TextUnit(*units, display, number);
    double millimeters = 0;
    if (!of || !shown || !ReadLength(text, *shown, millimeters)) return 0;
    *value = millimeters / NumberUnit(number, *of);
    return 1;
}

int NumberToText(Table* units, uint16_t display, uint16_t number, double value, char* buffer, int size, bool suffix) {
    if (!units) return 0;
    const LengthUnit* of = UnitOfVariable(*units, number);
    const LengthUnit* shown = TextUnit(*units, display, number);
    if (!of || !shown) return 0;
    LengthFormat format = LengthFormatOf(*units);
    format.suffix = suffix;
    if (number != kUnitDrawing) format.system = LengthSystem::Decimal; // lengths on paper are not written in feet
    return CopyIfFits(WriteLength(value * NumberUnit(number, *of), *shown, format), buffer, size);
}

Table* UnitsOf(DrawingStruct* drawing) {
    const Drawing* found = Drawing::Find(drawing);
    return found ? found->Units() : nullptr;
}

// Returns the space of a length in the drawing, or of a text size (kind 1), which depends on the drawing.
uint16_t SpaceOf(DrawingStruct* drawing, int kind) {
    return kind == 1 ? DrawingGetCoordSpace(drawing) : uint16_t{kSpaceWorld};
}

uint16_t UnitInSpace(uint16_t space) {
    return space == kSpaceWorld ? kUnitDrawing : kUnitTextSize;
}

// Returns the variable that defines the unit of the number, or one that does not exist for kSpaceDevice.
uint16_t NumberInSpace(uint16_t space) {
    if (space == kSpaceDevice) return 0;
    return space == kSpaceWorld ? kUnitDrawing : kUnitMillimeter;
}

} // namespace

} // namespace drawcore

using namespace drawcore;

int UnitsTextToNumericEx(TableStruct* units, uint16_t number, uint16_t display, const char* text, double* value) {
    return TextToNumber(Table::Find(units), number, display, text, value);
}

int UnitsNumericToTextEx(TableStruct* units, uint16_t display, uint16_t number, double value, char* buffer, int size,
                         int, int suffix) {
    return NumberToText(Table::Find(units), display, number, value, buffer, size, suffix != 0);
}

int DrawingStdTextToNumeric(DrawingStruct* drawing, const char* text, double* value, int kind) {
    const uint16_t space = SpaceOf(drawing, kind);
    return DrawingStdTextToNumericEx(drawing, text, value, space, UnitInSpace(space));
}

int DrawingStdNumericToText(DrawingStruct* drawing, double value, char* buffer, int size, int kind) {
    const uint16_t space = SpaceOf(drawing, kind);
    return DrawingStdNumericToTextEx(drawing, value, buffer, size, space, UnitInSpace(space));
}

int DrawingStdTextToNumericEx(DrawingStruct* drawing, const char* text, double* value, uint16_t coordSpace,
                              uint16_t unit) {
    return TextToNumber(UnitsOf(drawing), NumberInSpace(coordSpace), unit, text, value);
}

int DrawingStdNumericToTextEx(DrawingStruct* drawing, double value, char* buffer, int size, uint16_t coordSpace,
                              uint16_t unit) {
    return NumberToText(UnitsOf(drawing), unit, NumberInSpace(coordSpace), value, buffer, size,
                        coordSpace != kSpaceWorld);
}

double UnitsGetScaleValue(TableStruct* units, const char* text) {
    const Table* table = Table::Find(units);
    const LengthUnit* unit = table ? UnitOfVariable(*table, kUnitDrawing) : nullptr;
    const std::string_view input = text ? text : "";
    const size_t mark = input.find_first_of(":=");
    double paper = 0, world = 0;
    if (!unit || mark == std::string_view::npos) return 0.0;
    if (!ReadLength(input.substr(0, mark), *unit, paper) || !ReadLength(input.substr(mark + 1), *unit, world))
        return 0.0;
    const double scale = world / paper;
    return paper > 0 && world > 0 && std::isfinite(scale) ? scale : 0.0;
}

int UnitsMakeScaleString(TableStruct*, double scale, char* buffer, int size) {
    if (!std::isfinite(scale) || scale <= 0 || !std::isfinite(1 / scale)) return 0;
    constexpr int kDigits = 12;
    const std::string text =
        scale >= 1 ? "1 : " + DecimalText(scale, kDigits) : DecimalText(1 / scale, kDigits) + " : 1";
    return CopyIfFits(text, buffer, size);
}

int UnitsGetLUnitValue(TableStruct* units, uint16_t variable, double* value) {
    const Table* table = Table::Find(units);
    const LengthUnit* unit = table ? UnitOfVariable(*table, variable) : nullptr;
    if (!unit || !value) return 0;
    *value = unit->millimeters;
    return 1;
}

uint16_t UnitsGetAngularSystem(TableStruct* units) {
    const Table* table = Table::Find(units);
    return static_cast<uint16_t>(table ? AngleFormatOf(*table).system : AngleFormat().system);
}

int DrawingStdTextToAngle(DrawingStruct* drawing, const char* text, double* value, int) {
    const Table* units = UnitsOf(drawing);
    return units && text && value && ReadAngle(text, AngleFormatOf(*units).system, *value);
}

int DrawingStdAngleToText(DrawingStruct* drawing, double value, char* buffer, int size, int) {
    const Table* units = UnitsOf(drawing);
    return units ? CopyIfFits(WriteAngle(value, AngleFormatOf(*units)), buffer, size) : 0;
}

int DrawingGetScaleString(DrawingStruct* drawing, char* buffer, int size) {
    const Drawing* found = Drawing::Find(drawing);
    return found ? CopyIfFits(found->scaleText, buffer, size) : 0;
}

int DrawingSetScaleString(DrawingStruct* drawing, const char* text) {
    Drawing* found = Drawing::Find(drawing);
    if (!found || UnitsGetScaleValue(found->Units(), text) == 0.0) return 0;
    found->scaleText = text;
    return 1;
}
