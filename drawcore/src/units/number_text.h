// Parses and formats plain numbers without digit grouping, with the application's decimal mark.
#pragma once

#include <string>
#include <string_view>

namespace drawcore {

// Longer texts are not numbers, lengths or angles.
constexpr size_t kLongestText = 255;

// Parses the unsigned number at the start of the text: digits with at most one decimal mark and an optional
// exponent. Returns the number of characters, or 0 with value unchanged if there is no number or it overflows.
size_t ScanUnsigned(std::string_view text, double& value);
// Parses only digits.
size_t ScanInteger(std::string_view text, double& value);

// Formats with that many decimal places, or more if needed for four significant digits, without trailing zeros. Very
// large and very small numbers have an exponent. Returns an empty string for a value that is not finite.
std::string DecimalText(double value, int decimals);
// Always formats with an exponent.
std::string ScientificText(double value, int decimals);

// Returns the number of decimal places that DecimalText uses.
int DecimalsFor(double value, int decimals);

} // namespace drawcore
