// Formats and parses lengths.
#include "drawcore/src/units/length_text.h"

#include <cmath>

#include "drawcore/src/units/calculation.h"
#include "orlo/host/words.h"

namespace drawcore {

namespace {

constexpr double kInch = kMillimetersPerInch, kFoot = 304.8; // exactly 12 inches
constexpr int kMaxDecimals = 12;

class Lengths : public Measure {
public:
    explicit Lengths(const LengthUnit& defaultUnit) : Measure(defaultUnit.millimeters) {}

    double Unit(std::string_view name) const override {
        const LengthUnit* unit = FindLengthUnit(name);
        return unit ? unit->millimeters : 0;
    }

    bool ReadOne(TextCursor& cursor, Quantity& length) const override {
        std::string_view name;
        if (!ReadPart(cursor, length, name)) return false;
        return !length.measured || Unit(name) != kFoot || ReadInches(cursor, length.value);
    }

private:
    // Parses inches after feet: "1'-6", "1' 6 1/2\"". A hyphen surrounded by blanks is a minus sign. Fails for "1'-6'",
    // which is more likely a typo for 1'-6" than a difference.
    bool ReadInches(TextCursor& cursor, double& feet) const {
        const TextCursor before = cursor;
        const bool joined = cursor.Consume('-');
        if (!joined) cursor.SkipBlanks();
        Quantity inches;
        std::string_view name;
        const bool read = ReadPart(cursor, inches, name);
        if (read && joined && name == "'") return false;
        if (read && (!inches.measured || Unit(name) == kInch))
            feet += inches.measured ? inches.value : inches.value * kInch;
        else
            cursor = before;
        return true;
    }

    // Parses a number with its optional unit.
    bool ReadPart(TextCursor& cursor, Quantity& part, std::string_view& name) const {
        double number = 0;
        if (!cursor.JoinedNumber(number)) return false;
        name = cursor.ConsumeUnit();
        part = {number, false};
        if (name.empty()) return true;
        part = {number * Unit(name), true};
        return Unit(name) != 0;
    }
};

std::string WithUnit(const std::string& number, const LengthUnit& unit, bool suffix) {
    return suffix && !number.empty() ? number + " " + unit.name : number;
}

std::string Plain(double number) {
    return DecimalText(number, 0);
}

// Converts a number to steps that a double represents exactly. Returns false if there are too many or the number is not
// finite.
bool CountSteps(double number, double perUnit, double& steps) {
    steps = std::round(std::fabs(number) * perUnit);
    return steps < 1e15 && (steps > 0 || number == 0);
}

// Returns "18 1/2", "1/2" or "18": whole units and a fraction with the given number of steps per unit, a power of two.
std::string FractionText(double steps, double perUnit) {
    const double units = std::floor(steps / perUnit);
    double over = steps - units * perUnit, under = perUnit;
    if (over == 0) return Plain(units);
    for (; std::fmod(over, 2) == 0; under /= 2)
        over /= 2;
    const std::string fraction = Plain(over) + "/" + Plain(under);
    return units > 0 ? Plain(units) + " " + fraction : fraction;
}

// Returns "1'-6 1/2\"" or "1'-6.5\"" for a number of steps.
std::string FeetAndInches(double steps, double perInch, const LengthFormat& format) {
    const double feet = std::floor(steps / (12 * perInch));
    const double rest = steps - feet * 12 * perInch;
    const std::string inches = format.system == LengthSystem::Architectural ? FractionText(rest, perInch)
                                                                            : DecimalText(rest / perInch, kMaxDecimals);
    return (feet > 0 ? Plain(feet) + "'-" : std::string()) + inches + "\"";
}

std::string WriteFeetAndInches(double millimeters, const LengthFormat& format) {
    const bool fractions = format.system == LengthSystem::Architectural;
    const double inches = millimeters / kInch;
    const int digits = fractions ? format.digits : DecimalsFor(inches, format.digits);
    const double perInch = std::pow(fractions ? 2 : 10, digits);
    double steps = 0;
    if (digits <= kMaxDecimals && CountSteps(inches, perInch, steps))
        return (inches < 0 ? "-" : "") + FeetAndInches(steps, perInch, format);
    const std::string number = DecimalText(inches, format.digits);
    return number.empty() ? number : number + "\"";
}

std::string WriteFraction(double number, const LengthFormat& format) {
    const double perUnit = std::pow(2, format.digits);
    double steps = 0;
    if (!CountSteps(number, perUnit, steps)) return DecimalText(number, format.digits);
    return (number < 0 ? "-" : "") + FractionText(steps, perUnit);
}

} // namespace

bool ReadLength(std::string_view text, const LengthUnit& defaultUnit, double& millimeters) {
    return ReadMeasured(text, Lengths(defaultUnit), millimeters);
}

std::string WriteLength(double millimeters, const LengthUnit& unit, const LengthFormat& format) {
    const double number = millimeters / unit.millimeters;
    switch (format.system) {
    case LengthSystem::Scientific:
        return WithUnit(ScientificText(number, format.digits), unit, format.suffix);
    case LengthSystem::Engineering:
    case LengthSystem::Architectural:
        return WriteFeetAndInches(millimeters, format);
    case LengthSystem::Fractional:
        return WithUnit(WriteFraction(number, format), unit, format.suffix);
    case LengthSystem::Decimal:
        break;
    }
    return WithUnit(DecimalText(number, format.digits), unit, format.suffix);
}

} // namespace drawcore
