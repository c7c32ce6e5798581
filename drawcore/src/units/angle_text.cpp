// Formats and parses angles.
#include "drawcore/src/units/angle_text.h"

#include <algorithm>
#include <cmath>

#include "drawcore/src/dxf/fold_name.h"
#include "drawcore/src/units/calculation.h"

namespace drawcore {

namespace {

constexpr double kDegree = 0.017453292519943295, kGrad = 0.015707963267948967, kRight = 90 * kDegree;
constexpr double kMaxSteps = 1e15; // the largest number whose last decimal digit a double represents
constexpr double kNoAngle = 1e-15; // in radians; smaller results are rounding errors of a full turn

constexpr struct {
    const char* name;
    double radians;
} kUnits[] = {{"d", kDegree}, {"deg", kDegree}, {"degree", kDegree}, {"degrees", kDegree}, {"\xB0", kDegree},
              {"g", kGrad},   {"gon", kGrad},   {"grad", kGrad},     {"grads", kGrad},     {"r", 1},
              {"rad", 1},     {"radian", 1},    {"radians", 1},      {"'", kDegree / 60},  {"\"", kDegree / 3600}};

// Returns 0 if there is no such unit.
double FindUnit(std::string_view name) {
    const std::string folded = dxf::FoldName(name);
    for (const auto& unit : kUnits)
        if (folded == unit.name) return unit.radians;
    return 0;
}

double UnitOf(AngleSystem system) {
    if (system == AngleSystem::Radians) return 1;
    return system == AngleSystem::Grads ? kGrad : kDegree;
}

// Minutes may follow degrees, and seconds minutes.
bool IsDivided(double unit) {
    return unit == kDegree || unit == kDegree / 60;
}

class Angles : public Measure {
public:
    explicit Angles(double defaultUnit) : Measure(defaultUnit) {}

    double Unit(std::string_view name) const override { return FindUnit(name); }

    // Parses a number with an optional unit, or degrees, minutes and seconds. Of these, only the last may have a
    // fraction, and minutes and seconds must be less than 60.
    bool ReadOne(TextCursor& cursor, Quantity& angle) const override {
        double before = 0;
        do {
            double number = 0;
            if (!cursor.Mixed(number)) return false;
            const std::string_view name = cursor.ConsumeUnit();
            if (name.empty() && !before) {
                angle = {number, false};
                return true;
            }
            const double unit = FindUnit(name);
            if (!unit || (before && number >= std::round(before / unit))) return false;
            angle = {angle.value + number * unit, true};
            before = IsDivided(unit) && number == std::floor(number) ? unit : 0;
        } while (before && cursor.NumberFollows());
        return true;
    }
};

std::string_view WithoutBlanks(std::string_view text) {
    const size_t first = text.find_first_not_of(" \t");
    if (first == text.npos) return {};
    return text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

// Parses "N 45d E", from north or south toward east or west, or a single "N", "E", "S" or "W".
bool ReadBearing(std::string_view input, double defaultUnit, double& radians) {
    const std::string text = dxf::FoldName(WithoutBlanks(input));
    constexpr std::string_view kDirections = "enws";
    if (text.size() == 1 && kDirections.find(text[0]) != kDirections.npos) {
        radians = kRight * static_cast<double>(kDirections.find(text[0]));
        return true;
    }
    if (text.size() < 3 || (text[0] != 'n' && text[0] != 's')) return false;
    const char side = text.back();
    double deviation = 0;
    if (side != 'e' && side != 'w') return false;
    const std::string_view middle = std::string_view(text).substr(1, text.size() - 2);
    if (!ReadMeasured(middle, Angles(defaultUnit), deviation) || deviation < 0 || deviation > kRight) return false;
    const bool north = text[0] == 'n';
    radians = (north ? 1 : 3) * kRight + (north == (side == 'w') ? deviation : -deviation);
    return true;
}

// The resolution of degrees: whole degrees, minutes, seconds, and decimal places of the seconds.
class Division {
public:
    explicit Division(int digits) : level_(digits <= 0 ? 0 : digits <= 2 ? 1 : std::max(2, digits - 2)) {}

    // Converts degrees to steps, with a finer resolution if the error would exceed the given one. Returns false if no
    // resolution is fine enough or there are too many steps.
    bool Count(double degrees, double error, double& steps) {
        for (;;) {
            steps = std::round(degrees * StepsOfDegree());
            if (std::fabs(steps / StepsOfDegree() - degrees) <= error) return std::fabs(steps) < kMaxSteps;
            if (level_ == kFinest) return false;
            ++level_;
        }
    }
    int SecondDigits() const { return std::max(0, level_ - 2); }
    double StepsOfDegree() const { return level_ == 0 ? 1 : level_ == 1 ? 60 : 3600 * std::pow(10, SecondDigits()); }

private:
    static constexpr int kFinest = 10;
    int level_;
};

// Returns half of the last digit of a decimal number of this size with at least four digits.
double AllowedError(double value) {
    return std::pow(10, -DecimalsFor(value, 0)) / 2;
}

// Formats nonnegative steps.
std::string StepsText(double steps, const Division& division) {
    const double perDegree = division.StepsOfDegree();
    const double wholeDegrees = std::floor(steps / perDegree);
    const double rest = (steps - wholeDegrees * perDegree) * 60; // in sixtieths of a degree
    const double minutes = std::floor(rest / perDegree);
    const double seconds = (rest - minutes * perDegree) * 60 / perDegree;
    std::string text = DecimalText(wholeDegrees, 0) + "d";
    if (minutes > 0 || seconds > 0) text += DecimalText(minutes, 0) + "'";
    if (seconds > 0) text += DecimalText(seconds, division.SecondDigits()) + "\"";
    return text;
}

std::string WriteDegrees(double degrees, int digits) {
    Division division(digits);
    double steps = 0;
    if (division.Count(std::fabs(degrees), AllowedError(degrees), steps))
        return (degrees < 0 ? "-" : "") + StepsText(steps, division);
    return DecimalText(degrees, digits) + "d";
}

// Formats the rounded angle, so that rounding errors near a compass direction do not show.
std::string WriteBearing(double degrees, int digits) {
    Division division(digits);
    double steps = 0;
    const bool counted = division.Count(degrees, AllowedError(90), steps);
    const double quarter = 90 * division.StepsOfDegree();
    if (!counted || steps < 0 || steps > 4 * quarter) return WriteDegrees(degrees, digits);
    if (steps == 4 * quarter) steps = 0;
    const bool north = steps <= 2 * quarter, east = steps <= quarter || steps > 3 * quarter;
    const double deviation = std::fabs(steps - (north ? quarter : 3 * quarter));
    if (deviation == 0) return north ? "N" : "S";
    if (deviation == quarter) return east ? "E" : "W";
    return (north ? "N " : "S ") + StepsText(deviation, division) + (east ? " E" : " W");
}

} // namespace

bool ReadAngle(std::string_view text, AngleSystem system, double& radians) {
    return ReadBearing(text, UnitOf(system), radians) || ReadMeasured(text, Angles(UnitOf(system)), radians);
}

std::string WriteAngle(double radians, const AngleFormat& format) {
    const double number = std::fabs(radians) < kNoAngle ? 0 : radians / UnitOf(format.system);
    if (!std::isfinite(number)) return {};
    if (format.system == AngleSystem::DegreesMinutesSeconds) return WriteDegrees(number, format.digits);
    if (format.system == AngleSystem::Bearings) return WriteBearing(number, format.digits);
    return DecimalText(number, format.digits);
}

} // namespace drawcore
