// Plain numbers as text: no grouping, the decimal mark of the application's setting.
#pragma once

#include <string>
#include <string_view>

namespace drawcore {

// A text with more characters is not a number, length or angle, whatever it says.
constexpr size_t kLongestText = 255;

// The number without sign at the start of the text: digits with at most one decimal mark, perhaps an exponent. The
// number of characters that it takes; 0, and value left alone, if there is no number or it is too large for a double.
size_t ScanUnsigned(std::string_view text, double& value);
// The same for digits alone.
size_t ScanWhole(std::string_view text, double& value);

// With that many digits after the mark, or as many more as show four significant ones; without trailing zeros. Very
// large and very small numbers get an exponent. Empty for what is not a number.
std::string DecimalText(double value, int decimals);
// The same with an exponent, whatever the size.
std::string ScientificText(double value, int decimals);

// The digits after the mark that show the number so.
int DecimalsFor(double value, int decimals);

} // namespace drawcore
