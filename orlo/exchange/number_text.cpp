// Parses numbers.

#include "orlo/exchange/number_text.h"

#include <algorithm>
#include <cfloat>
#include <cmath>
#include <cstddef>
#include <cstdlib>
#include <cstring>
#include <string>

#include "orlo/host/units.h"

namespace {

const char* SkipBlanks(const char* text) {
    return text + std::strspn(text, " \t");
}

} // namespace

bool ScanTextValue(const char* text, bool isUnsigned, long& value) {
    const char* const first = SkipBlanks(text);
    char* end = nullptr;
    const long result = isUnsigned ? static_cast<long>(std::strtoul(first, &end, 10)) : std::strtol(first, &end, 10);
    // strtol also returns 0 for an empty text or a lone sign, so a zero must begin with the digit 0.
    if (result == 0 && *first != '0') return false;
    if (*SkipBlanks(end) != '\0') return false;
    value = result;
    return true;
}

bool ScanNumber(const char* text, double& value) {
    const char* const first = SkipBlanks(text);
    char* end = nullptr;
    const double result = ::StringToDouble(0, first, &end);
    if (!end || end == first || *SkipBlanks(end) != '\0' || !std::isfinite(result)) return false;
    value = result;
    return true;
}

bool ScanRealText(const char* text, float& value) {
    double number = 0.0;
    if (!ScanNumber(text, number) || std::fabs(number) > FLT_MAX) return false;
    value = static_cast<float>(number);
    return true;
}

bool IsBeginningOfReal(const char* text) {
    float value = 0;
    const std::string begun = text;
    if (ScanRealText(text, value)) return false;
    const auto open = std::count(begun.begin(), begun.end(), '(') - std::count(begun.begin(), begun.end(), ')');
    const std::string closed(static_cast<size_t>(std::max<ptrdiff_t>(open, 0)), ')');
    // The slash completes "6 1", which may become "6 1/2".
    for (const char* next : {"", "1", "/1"})
        if (ScanRealText((begun + next + closed).c_str(), value)) return true;
    return false;
}
