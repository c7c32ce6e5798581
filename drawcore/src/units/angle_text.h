// Parses and formats angles.
//
// Accepts "45", "-12.5", "12d30'15.5\"", "50g", "0.7854r", "N 45d E" (a bearing), surrounded by blanks, and
// calculations with them (calculation.h) except with bearings. A minus sign applies to the whole angle. Text is
// accepted or rejected as a whole, in any format, whatever format the drawing uses.
#pragma once

#include <string>
#include <string_view>

namespace drawcore {

// With the numbers of DXF.
enum class AngleSystem { Degrees, DegreesMinutesSeconds, Grads, Radians, Bearings };

// The format of angles.
struct AngleFormat {
    AngleSystem system = AngleSystem::Degrees;
    // Number of decimal places. For degrees, minutes and seconds: 0 is degrees, 1 and 2 with minutes, 3 and 4 with
    // seconds; each further one adds a decimal place to the seconds.
    int digits = 4;
};

// Parses an angle to radians; a number without a unit is in the unit of the system. Returns false and leaves radians
// unchanged if the text is not an angle.
bool ReadAngle(std::string_view text, AngleSystem system, double& radians);

// Returns an empty string if the angle is not a number. An angle outside 0 to 360 degrees is not formatted as a
// bearing, but in degrees, minutes and seconds. An angle that rounds to a compass direction is formatted as that
// direction.
std::string WriteAngle(double radians, const AngleFormat& format);

} // namespace drawcore
