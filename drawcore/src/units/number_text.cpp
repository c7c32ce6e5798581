// Rounding, decimal mark, and verification by parsing.
#include "drawcore/src/units/number_text.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstring>

#include "drawcore/src/units/calculation.h"
#include "drawcore/src/units/decimal_mark.h"
#include "orlo/host/units.h"

namespace drawcore {

namespace {

constexpr int kMaxDigits = 17;  // significant digits of a double
constexpr int kMinDecimals = 3; // for a mantissa: four significant digits

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

size_t CountDigits(std::string_view text) {
    return static_cast<size_t>(std::find_if_not(text.begin(), text.end(), IsDigit) - text.begin());
}

// Returns the length of an exponent at the start of the text. A letter without digits is not an exponent.
size_t CountExponent(std::string_view text) {
    if (text.empty() || (text[0] != 'e' && text[0] != 'E')) return 0;
    const size_t lead = text.size() > 1 && (text[1] == '+' || text[1] == '-') ? 2 : 1;
    const size_t digits = CountDigits(text.substr(lead));
    return digits ? lead + digits : 0;
}

// Removes trailing zeros after the decimal point, and the point if nothing follows; keeps the exponent.
std::string Trimmed(std::string text) {
    const size_t mark = text.find('.');
    if (mark == std::string::npos) return text;
    const size_t exponent = std::min(text.find('e'), text.size());
    const size_t last = text.find_last_not_of('0', exponent - 1);
    return text.substr(0, last == mark ? last : last + 1) + text.substr(exponent);
}

std::string Marked(std::string text) {
    std::replace(text.begin(), text.end(), '.', DecimalMark());
    return text == "-0" ? "0" : text;
}

std::string Format(double value, std::chars_format form, int precision) {
    char buffer[400]; // the largest double without exponent has 309 digits before the point
    const auto result = std::to_chars(buffer, buffer + sizeof buffer, value, form, precision);
    return std::string(buffer, result.ptr);
}

int DecimalExponent(double value) {
    return value == 0 ? 0 : static_cast<int>(std::floor(std::log10(std::fabs(value))));
}

} // namespace

size_t ScanUnsigned(std::string_view text, double& value) {
    const size_t integerDigits = CountDigits(text);
    size_t length = integerDigits, decimals = 0;
    if (length < text.size() && text[length] == DecimalMark()) {
        decimals = CountDigits(text.substr(length + 1));
        length += 1 + decimals;
    }
    if (!integerDigits && !decimals) return 0;
    length += CountExponent(text.substr(length));
    if (length > kLongestText) return 0;
    std::string number(text.substr(0, length));
    std::replace(number.begin(), number.end(), ',', '.');
    double read = 0;
    if (std::from_chars(number.data(), number.data() + length, read).ec != std::errc()) return 0;
    value = read;
    return length;
}

size_t ScanInteger(std::string_view text, double& value) {
    const size_t length = CountDigits(text);
    return length && ScanUnsigned(text.substr(0, length), value) ? length : 0;
}

int DecimalsFor(double value, int decimals) {
    return std::max(decimals, kMinDecimals - DecimalExponent(value));
}

std::string DecimalText(double value, int decimals) {
    if (!std::isfinite(value)) return {};
    const int exponent = DecimalExponent(value);
    if (exponent >= 15 || exponent < -9) return ScientificText(value, decimals);
    // At most fifteen digits in total, because further ones would depend on the conversion.
    const int shown = std::min(DecimalsFor(value, decimals), 14 - exponent);
    return Marked(Trimmed(Format(value, std::chars_format::fixed, shown)));
}

std::string ScientificText(double value, int decimals) {
    constexpr double kAlmostTooLarge = 1e300; // rounding up can overflow in a larger unit
    if (!std::isfinite(value)) return {};
    if (std::fabs(value) > kAlmostTooLarge) decimals = kMaxDigits - 1;
    return Marked(Trimmed(Format(value, std::chars_format::scientific, std::max(decimals, kMinDecimals))));
}

} // namespace drawcore

using namespace drawcore;

double StringToDouble(int, const char* text, char** end) {
    char* const start = const_cast<char*>(text); // like strtod, returns a pointer into the caller's text
    if (end) *end = start;
    if (!text) return 0;
    const std::string_view input = text;
    TextCursor cursor(input);
    cursor.SkipBlanks();
    double value = 0;
    if (!ReadCalculation(cursor, value)) return 0;
    if (end) *end = start + (input.size() - cursor.Rest().size());
    return value;
}

void DoubleToString(int, double value, int digits, char* buffer, int, int exponentForm, int) {
    constexpr size_t kLongest = 31;
    if (!buffer) return;
    const int decimals = std::clamp(digits, 1, kMaxDigits) - 1;
    std::string text = Format(value, std::chars_format::scientific, decimals);
    if (!exponentForm && std::isfinite(value)) {
        // The exponent after rounding: 9.9999996 with six digits is 10.
        const int exponent = std::atoi(text.c_str() + text.find('e') + 1);
        const std::string plain = Format(value, std::chars_format::fixed, std::max(0, decimals - exponent));
        if (plain.size() <= kLongest) text = plain;
    }
    text = Marked(Trimmed(text));
    std::memcpy(buffer, text.c_str(), text.size() + 1);
}
