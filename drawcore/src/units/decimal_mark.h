// The decimal mark for parsing and formatting numbers. The program that links this library defines it; the
// database uses a setting of the application.
#pragma once

namespace drawcore {

char DecimalMark(); // Returns '.' or ','.

} // namespace drawcore
