// Angles as text.
//
// Reading: "45", "-12.5", "12d30'15.5\"", "50g", "0.7854r", "N 45d E" (a bearing), blanks around it, and calculations
// with them (calculation.h), though not with bearings. A minus counts for the whole angle; the text is read in full or
// refused. Every form is read, whatever form the drawing writes.
#pragma once

#include <string>
#include <string_view>

namespace drawcore {

// As DXF numbers them.
enum class AngleSystem { Degrees, DegreesMinutesSeconds, Grads, Radians, Bearings };

// How an angle is written.
struct AngleFormat {
    AngleSystem system = AngleSystem::Degrees;
    // Digits after the decimal mark. Of degrees, minutes and seconds: 0 degrees, 1 and 2 with minutes, 3 and 4 with
    // seconds, and each one more a digit of the seconds.
    int digits = 4;
};

// Radians of the text; a number without a unit is in that of the system. False, and value left alone, if it is not an
// angle.
bool ReadAngle(std::string_view text, AngleSystem bare, double& radians);

// Empty if the angle is not a number. A bearing has neither turns nor sign: for an angle beyond one turn or below 0
// degrees, degrees, minutes and seconds are written instead. One that its digits, or four of a right angle, do not tell
// from a direction of the compass is that direction.
std::string WriteAngle(double radians, const AngleFormat& format);

} // namespace drawcore
