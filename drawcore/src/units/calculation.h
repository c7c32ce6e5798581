// Parses calculations: + - * / and parentheses with numbers, or with numbers with units.
//
// A calculation ends before an operator that is not followed by a number: "2*" is 2, and the caller may reject the
// rest. "6 1/2" is always one number. "6-1/2" is one number if it stands alone or has a unit; in a calculation without
// units its hyphen is a minus sign, and in one with units it is rejected as ambiguous. A minus sign surrounded by
// blanks is unambiguous.
#pragma once

#include <string_view>

#include "drawcore/src/units/text_cursor.h"

namespace drawcore {

// An operand: a plain number, or a measured one, which has a unit and is converted to the measure's unit.
struct Quantity {
    double value = 0;
    bool measured = false;
};

// Lengths or angles.
class Measure {
public:
    // defaultUnit: unit of numbers without one.
    explicit Measure(double defaultUnit) : defaultUnit_(defaultUnit) {}
    virtual ~Measure() = default;
    double DefaultUnit() const { return defaultUnit_; }
    // Returns 0 if there is no such unit.
    virtual double Unit(std::string_view name) const = 0;
    // Parses a number with or without a unit, or several that form one ("1'-6 1/2\"", "12d30'"), without a sign.
    virtual bool ReadOne(TextCursor& cursor, Quantity& quantity) const = 0;

private:
    double defaultUnit_;
};

// Parses the longest calculation with plain numbers. Returns false and leaves cursor and value unchanged if there is
// none, or if it divides by zero or overflows.
bool ReadCalculation(TextCursor& cursor, double& value);

// Parses the whole text to the measure's own unit. A number can be multiplied and divided only by a number without a
// unit, and added to others of its kind. A single unit at the end applies to the whole calculation ("100+50 mm"); if
// there are other units, a number without one has the default unit ("2 in + 3"). Returns false and leaves value
// unchanged if the text is anything else.
bool ReadMeasured(std::string_view text, const Measure& measure, double& value);

} // namespace drawcore
