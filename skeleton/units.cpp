// Numbers, lengths, angles and scales as text. Parsing a text that was written returns the value that it shows.

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "database.h"

namespace {

constexpr double kDegrees = 57.29577951308232;

struct Unit {
    const char* name;
    double millimeters;
};
constexpr Unit kUnits[] = {
    {"mm", 1}, {"cm", 10}, {"m", 1000}, {"in", kMillimetersPerInch}, {"pt", kMillimetersPerInch / 72}};

const Unit* FindUnit(const std::string& name) {
    for (const Unit& unit : kUnits)
        if (name == unit.name) return &unit;
    return nullptr;
}

const Unit* UnitOf(TableStruct* units, uint16_t variable) {
    char name[16] = "";
    return ::TableGetStringVar(units, variable, name, sizeof name) ? FindUnit(name) : nullptr;
}

const char* SkipBlanks(const char* text) {
    return text + std::strspn(text, " \t");
}

// Parses a number with an optional unit; a number without one is in the given unit. Returns false if the text is not
// such a number.
bool ReadLength(const char* text, const Unit& defaultUnit, double& millimeters) {
    char* end = nullptr;
    const double number = ::StringToDouble(0, text, &end);
    if (end == text) return false;
    std::string name = SkipBlanks(end);
    while (!name.empty() && std::strchr(" \t", name.back()))
        name.pop_back();
    const Unit* unit = name.empty() ? &defaultUnit : FindUnit(name);
    if (!unit) return false;
    millimeters = number * unit->millimeters;
    return std::isfinite(millimeters);
}

// Returns 0 if the text does not fit, because a truncated text would be a different number.
int Store(const std::string& text, char* buffer, int size) {
    if (text.size() >= static_cast<size_t>(std::max(size, 0))) return 0;
    CopyText(text, buffer, size);
    return 1;
}

std::string NumberText(double number) {
    char text[32];
    std::snprintf(text, sizeof text, "%.10g", number);
    return text;
}

// Lengths in the drawing are in drawing units, lengths on paper in millimeters.
double NumberUnit(uint16_t variable, const Unit& own) {
    return variable == kUnitDrawing ? own.millimeters : 1.0;
}

uint16_t NumberIn(uint16_t space) {
    return space == kSpaceWorld ? kUnitDrawing : kUnitMillimeter;
}

} // namespace

double StringToDouble(int, const char* text, char** end) {
    const char* first = SkipBlanks(text);
    // The C library also reads "inf", "nan" and hexadecimal numbers, which are not allowed here.
    const size_t length = std::strspn(first, "+-.0123456789eE");
    const std::string plain(first, length);
    char* stop = nullptr;
    const double value = std::strtod(plain.c_str(), &stop);
    const bool none = stop == plain.c_str() || !std::isfinite(value);
    if (end) *end = const_cast<char*>(none ? text : first + (stop - plain.c_str()));
    return none ? 0.0 : value;
}

void DoubleToString(int, double value, int digits, char* buffer, int, int exponentForm, int) {
    constexpr int kSize = 32; // the minimum size of the caller's buffer
    const int magnitude = value != 0 ? static_cast<int>(std::floor(std::log10(std::fabs(value)))) : 0;
    if (exponentForm || std::abs(magnitude) > 15)
        std::snprintf(buffer, kSize, "%.*e", std::max(digits - 1, 0), value);
    else
        std::snprintf(buffer, kSize, "%.*f", std::max(digits - 1 - magnitude, 0), value);
    std::string text = buffer;
    const std::string exponent = text.find('e') != std::string::npos ? text.substr(text.find('e')) : "";
    text.resize(text.size() - exponent.size());
    if (text.find('.') != std::string::npos) text.resize(text.find_last_not_of('0') + 1);
    if (text.back() == '.') text.pop_back();
    CopyText(text + exponent, buffer, kSize);
}

int UnitsTextToNumericEx(TableStruct* units, uint16_t number, uint16_t display, const char* text, double* value) {
    const Unit* own = UnitOf(units, number);
    const Unit* shown = UnitOf(units, display ? display : number);
    double millimeters;
    if (!own || !shown || !text || !value || !ReadLength(text, *shown, millimeters)) return 0;
    *value = millimeters / NumberUnit(number, *own);
    return 1;
}

int UnitsNumericToTextEx(TableStruct* units, uint16_t display, uint16_t number, double value, char* buffer, int size,
                         int, int suffix) {
    const Unit* own = UnitOf(units, number);
    const Unit* shown = UnitOf(units, display ? display : number);
    if (!own || !shown || !std::isfinite(value)) return 0;
    std::string text = NumberText(value * NumberUnit(number, *own) / shown->millimeters);
    if (suffix) text += std::string(" ") + shown->name;
    return Store(text, buffer, size);
}

int DrawingStdTextToNumericEx(DrawingStruct* drawing, const char* text, double* value, uint16_t space, uint16_t unit) {
    if (!drawing || space == kSpaceDevice) return 0;
    return ::UnitsTextToNumericEx(drawing->pUnits, NumberIn(space), unit, text, value);
}

int DrawingStdNumericToTextEx(DrawingStruct* drawing, double value, char* buffer, int size, uint16_t space,
                              uint16_t unit) {
    if (!drawing || space == kSpaceDevice) return 0;
    return ::UnitsNumericToTextEx(drawing->pUnits, unit, NumberIn(space), value, buffer, size, 0, space != kSpaceWorld);
}

// Text sizes are in drawing units, like all lengths in the drawing.
int DrawingStdTextToNumeric(DrawingStruct* drawing, const char* text, double* value, int) {
    return ::DrawingStdTextToNumericEx(drawing, text, value, kSpaceWorld, kUnitDrawing);
}

int DrawingStdNumericToText(DrawingStruct* drawing, double value, char* buffer, int size, int) {
    return ::DrawingStdNumericToTextEx(drawing, value, buffer, size, kSpaceWorld, kUnitDrawing);
}

int DrawingStdTextToAngle(DrawingStruct*, const char* text, double* value, int) {
    char* end = nullptr;
    const double degrees = text ? ::StringToDouble(0, text, &end) : 0;
    if (!text || !value || end == text || *SkipBlanks(end) != '\0') return 0;
    *value = degrees / kDegrees;
    return 1;
}

int DrawingStdAngleToText(DrawingStruct*, double value, char* buffer, int size, int) {
    return std::isfinite(value) ? Store(NumberText(value * kDegrees), buffer, size) : 0;
}

double UnitsGetScaleValue(TableStruct* units, const char* text) {
    const Unit* unit = UnitOf(units, kUnitDrawing);
    const char* mark = text ? std::strpbrk(text, ":=") : nullptr;
    double paper, world;
    if (!unit || !mark || !ReadLength(std::string(text, mark).c_str(), *unit, paper) ||
        !ReadLength(mark + 1, *unit, world))
        return 0.0;
    return paper > 0 && world > 0 && std::isfinite(world / paper) ? world / paper : 0.0;
}

int UnitsMakeScaleString(TableStruct*, double scale, char* buffer, int size) {
    if (!(scale > 0) || !std::isfinite(scale) || !std::isfinite(1 / scale)) return 0;
    return Store(scale >= 1 ? "1 : " + NumberText(scale) : NumberText(1 / scale) + " : 1", buffer, size);
}

int UnitsGetLUnitValue(TableStruct* units, uint16_t variable, double* value) {
    const Unit* unit = UnitOf(units, variable);
    if (!unit || !value) return 0;
    *value = unit->millimeters;
    return 1;
}

// The angular system is degrees.
uint16_t UnitsGetAngularSystem(TableStruct*) {
    return 0;
}
