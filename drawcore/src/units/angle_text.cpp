#include "drawcore/src/units/angle_text.h"

#include <algorithm>
#include <cmath>

#include "drawcore/src/tables/table.h"
#include "drawcore/src/units/text_cursor.h"

namespace drawcore {

namespace {

constexpr double kDegree = 0.017453292519943295, kGrad = 0.015707963267948967, kRight = 90 * kDegree;
constexpr double kMostSteps = 1e15; // that a double counts and a decimal shows to the last digit

constexpr struct {
    const char* name;
    double radians;
} kUnits[] = {
    {"d", kDegree}, {"deg", kDegree}, {"degree", kDegree}, {"degrees", kDegree}, {"\xB0", kDegree},
    {"g", kGrad},   {"gon", kGrad},   {"grad", kGrad},     {"grads", kGrad},     {"r", 1},
    {"rad", 1},     {"radian", 1},    {"radians", 1},      {"'", kDegree / 60},  {"\"", kDegree / 3600}};

// 0 if there is no such unit.
double FindUnit(std::string_view name) {
    const std::string folded = FoldName(name);
    for (const auto& unit : kUnits)
        if (folded == unit.name) return unit.radians;
    return 0;
}

double BareUnit(AngleSystem system) {
    if (system == AngleSystem::Radians) return 1;
    return system == AngleSystem::Grads ? kGrad : kDegree;
}

// Minutes follow degrees, seconds follow minutes.
bool IsDivided(double unit) {
    return unit == kDegree || unit == kDegree / 60;
}

// A number with its unit, or degrees, minutes and seconds: of these only the last number has a part behind the mark, and
// each is less than makes one of the unit before.
bool ReadParts(std::string_view text, double bare, double& radians) {
    TextCursor cursor(text);
    double sum = 0, before = 0;
    for (;;) {
        double number = 0;
        if (!cursor.Number(number)) return false;
        cursor.SkipBlanks();
        const std::string_view name = cursor.TakeWord();
        const double unit = name.empty() && !before ? bare : FindUnit(name);
        if (!unit || (before && number >= std::round(before / unit))) return false;
        sum += number * unit;
        if (cursor.AtEnd()) break;
        if (!IsDivided(unit) || number != std::floor(number)) return false;
        before = unit;
    }
    if (!std::isfinite(sum)) return false;
    radians = sum;
    return true;
}

bool ReadSigned(std::string_view text, double bare, double& radians) {
    TextCursor cursor(text);
    cursor.SkipBlanks();
    const bool negative = cursor.TakeMinus();
    if (!ReadParts(cursor.Rest(), bare, radians)) return false;
    if (negative) radians = -radians;
    return true;
}

std::string_view WithoutBlanks(std::string_view text) {
    const size_t first = text.find_first_not_of(" \t");
    if (first == text.npos) return {};
    return text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

// "N 45d E": from north or south so far to the east or west. "N", "E", "S", "W" alone.
bool ReadBearing(std::string_view whole, double bare, double& radians) {
    const std::string text = FoldName(WithoutBlanks(whole));
    constexpr std::string_view kDirections = "enws";
    if (text.size() == 1 && kDirections.find(text[0]) != kDirections.npos) {
        radians = kRight * static_cast<double>(kDirections.find(text[0]));
        return true;
    }
    if (text.size() < 3 || (text[0] != 'n' && text[0] != 's')) return false;
    const char side = text.back();
    double away = 0;
    if (side != 'e' && side != 'w') return false;
    const std::string_view middle = std::string_view(text).substr(1, text.size() - 2);
    if (!ReadParts(WithoutBlanks(middle), bare, away) || away > kRight) return false;
    const bool north = text[0] == 'n';
    radians = (north ? 1 : 3) * kRight + (north == (side == 'w') ? away : -away);
    return true;
}

// How finely degrees are divided: whole ones, minutes, seconds, and digits behind the mark of the seconds.
class Division {
public:
    explicit Division(int digits) : level_(digits <= 0 ? 0 : digits <= 2 ? 1 : std::max(2, digits - 2)) {}

    bool Refine() { return level_ < kFinest && ++level_; }
    int SecondDigits() const { return std::max(0, level_ - 2); }
    double StepsOfDegree() const {
        return level_ == 0 ? 1 : level_ == 1 ? 60 : 3600 * std::pow(10, SecondDigits());
    }

private:
    static constexpr int kFinest = 10;
    int level_;
};

// Four significant digits are left, as in every number here.
bool IsCloseEnough(double rounded, double value) {
    return std::fabs(rounded - value) <= 0.0005 * value;
}

std::string WriteDegrees(double degrees, int digits) {
    const double size = std::fabs(degrees);
    Division division(digits);
    double perDegree = 0, steps = 0;
    do {
        perDegree = division.StepsOfDegree();
        steps = std::round(size * perDegree);
    } while (!IsCloseEnough(steps / perDegree, size) && division.Refine());
    if (!IsCloseEnough(steps / perDegree, size) || !(steps < kMostSteps)) {
        const std::string decimal = DecimalText(degrees, digits);
        return decimal.empty() ? decimal : decimal + "d";
    }
    const double whole = std::floor(steps / perDegree);
    const double rest = (steps - whole * perDegree) * 60; // in sixtieths of a step
    const double minutes = std::floor(rest / perDegree);
    const double seconds = (rest - minutes * perDegree) * 60 / perDegree;
    std::string text = (degrees < 0 ? "-" : "") + DecimalText(whole, 0) + "d";
    if (minutes > 0 || seconds > 0) text += DecimalText(minutes, 0) + "'";
    if (seconds > 0) text += DecimalText(seconds, division.SecondDigits()) + "\"";
    return text;
}

std::string WriteBearing(double degrees, int digits) {
    if (!(degrees >= 0 && degrees < 360)) return WriteDegrees(degrees, digits);
    const bool north = degrees <= 180, east = degrees <= 90 || degrees > 270;
    const std::string away = WriteDegrees(std::fabs(degrees - (north ? 90 : 270)), digits);
    if (away == "0d") return north ? "N" : "S";
    if (away == "90d") return east ? "E" : "W";
    return (north ? "N " : "S ") + away + (east ? " E" : " W");
}

} // namespace

bool ReadAngle(std::string_view text, AngleSystem bare, double& radians) {
    if (text.size() > kLongestText) return false;
    return ReadBearing(text, BareUnit(bare), radians) || ReadSigned(text, BareUnit(bare), radians);
}

std::string WriteAngle(double radians, const AngleFormat& format) {
    if (format.system == AngleSystem::DegreesMinutesSeconds)
        return WriteDegrees(radians / kDegree, format.digits);
    if (format.system == AngleSystem::Bearings) return WriteBearing(radians / kDegree, format.digits);
    return DecimalText(radians / BareUnit(format.system), format.digits);
}

} // namespace drawcore
