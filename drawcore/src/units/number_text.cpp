#include "drawcore/src/units/number_text.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstring>

#include "orlo/host/units.h"

namespace drawcore {

namespace {

constexpr int kMostDigits = 17; // all that a double has

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

// Removes zeros behind the point, and the point behind which nothing is left; the exponent stays.
std::string Trimmed(std::string text) {
    const size_t mark = text.find('.');
    if (mark == std::string::npos) return text;
    const size_t exponent = std::min(text.find('e'), text.size());
    const size_t last = text.find_last_not_of('0', exponent - 1);
    return text.substr(0, last == mark ? last : last + 1) + text.substr(exponent);
}

std::string Format(double value, std::chars_format form, int precision) {
    char buffer[400]; // the longest double without exponent has 309 digits before the point
    const auto result = std::to_chars(buffer, buffer + sizeof buffer, value, form, precision);
    return std::string(buffer, result.ptr);
}

int DecimalExponent(double value) {
    return value == 0 ? 0 : static_cast<int>(std::floor(std::log10(std::fabs(value))));
}

} // namespace

size_t ScanUnsigned(std::string_view text, double& value) {
    // from_chars alone would take "inf", "nan" and a sign.
    const size_t lead = !text.empty() && text[0] == '.' ? 1 : 0;
    if (text.size() <= lead || !IsDigit(text[lead])) return 0;
    double number = 0;
    const auto result = std::from_chars(text.data(), text.data() + text.size(), number);
    if (result.ec != std::errc()) return 0;
    value = number;
    return static_cast<size_t>(result.ptr - text.data());
}

std::string DecimalText(double value, int decimals) {
    if (!std::isfinite(value)) return {};
    const int exponent = DecimalExponent(value);
    if (exponent >= 15 || exponent < -9)
        return Trimmed(Format(value, std::chars_format::scientific, std::max(decimals, 3)));
    // Never more than fifteen digits in all: the next would differ from one conversion to the other.
    const int shown = std::min(std::max(decimals, 3 - exponent), 14 - exponent);
    std::string text = Trimmed(Format(value, std::chars_format::fixed, shown));
    return text == "-0" ? "0" : text;
}

} // namespace drawcore

using namespace drawcore;

double StringToDouble(int, const char* text, char** end) {
    char* const start = const_cast<char*>(text); // as strtod: the caller's own text comes back
    if (end) *end = start;
    if (!text) return 0;
    size_t at = std::strspn(text, " \t");
    const bool negative = text[at] == '-';
    if (negative || text[at] == '+') ++at;
    double value = 0;
    const size_t length = ScanUnsigned(text + at, value);
    if (!length) return 0;
    if (end) *end = start + at + length;
    return negative ? -value : value;
}

void DoubleToString(int, double value, int digits, char* buffer, int, int exponentForm, int) {
    constexpr size_t kLongest = 31;
    if (!buffer) return;
    const int behind = std::clamp(digits, 1, kMostDigits) - 1;
    std::string text = Format(value, std::chars_format::scientific, behind);
    if (!exponentForm && std::isfinite(value)) {
        // The exponent after rounding to these digits, so that 9.9999996 in six of them is 10.
        const int exponent = std::atoi(text.c_str() + text.find('e') + 1);
        const std::string plain = Format(value, std::chars_format::fixed, std::max(0, behind - exponent));
        if (plain.size() <= kLongest) text = plain;
    }
    text = Trimmed(text);
    std::memcpy(buffer, text.c_str(), text.size() + 1);
}
