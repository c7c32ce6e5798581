// Plain numbers as text, the same in every locale: a point as decimal mark, no grouping.
#pragma once

#include <string>
#include <string_view>

namespace drawcore {

// The number without sign at the start of the text: digits with at most one point, perhaps an exponent. The number of
// characters that it takes; 0, and value left alone, if there is none or it is too large for a double.
size_t ScanUnsigned(std::string_view text, double& value);

// With that many digits behind the point, or as many more as show four significant ones; without trailing zeros. Very large
// and very small numbers get an exponent. Empty for what is no number.
std::string DecimalText(double value, int decimals);

} // namespace drawcore
