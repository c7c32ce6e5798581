// Calculations as text: + - * / and brackets over numbers, or over numbers with units.
//
// A sum or product that goes on with what is no number ends before that: "2*" is 2, and the rest is the caller's to
// refuse. "6 1/2" is one number everywhere. "6-1/2" is one alone or with its unit; in a calculation without units its
// hyphen is a minus, and one with units is refused, since it may mean either. A minus with blanks around it is never
// doubtful.
#pragma once

#include <string_view>

#include "drawcore/src/units/text_cursor.h"

namespace drawcore {

// What a calculation goes over: a plain number, or a measured one, which has a unit and counts in the measure's own.
struct Quantity {
    double value = 0;
    bool measured = false;
};

// Lengths or angles.
class Measure {
public:
    // bare: the unit of a number without one.
    explicit Measure(double bare) : bare_(bare) {}
    virtual ~Measure() = default;
    double Bare() const { return bare_; }
    // 0 if there is no such unit.
    virtual double Unit(std::string_view name) const = 0;
    // A number with or without a unit, or several of them that are one ("1'-6 1/2\"", "12d30'"), without a sign.
    virtual bool ReadOne(TextCursor& cursor, Quantity& quantity) const = 0;

private:
    double bare_;
};

// The longest calculation with plain numbers that comes next. False, with the cursor and the value where they were, if
// there is none, or only one that divides by nothing or leaves the range of a double.
bool ReadCalculation(TextCursor& cursor, double& value);

// The whole text in the measure's own unit. A number may be times or divided by another that has no unit, and is added
// to its like. A unit that stands only at the end counts for the whole calculation ("100+50 mm"); where there are
// others, a number without one has the bare unit ("2 in + 3"). False, with the value left alone, if it is anything
// else.
bool ReadMeasured(std::string_view text, const Measure& measure, double& value);

} // namespace drawcore
