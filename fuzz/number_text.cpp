// Parsing of numbers, lengths and angles.

#include <cmath>
#include <string>

#include "drawcore/src/units/angle_text.h"
#include "drawcore/src/units/decimal_mark.h"
#include "drawcore/src/units/length_text.h"
#include "orlo/host/units.h"

char drawcore::DecimalMark() {
    return '.';
}

namespace {

constexpr double kUntouched = 7;

void Require(bool holds) {
    if (!holds) __builtin_trap();
}

double NumberIn(const std::string& text) {
    char* end = nullptr;
    const double number = StringToDouble(0, text.c_str(), &end);
    Require(end >= text.c_str() && end <= text.c_str() + text.size() && std::isfinite(number));
    return number;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    std::string text(reinterpret_cast<const char*>(data), size);
    text.resize(text.find('\0') == text.npos ? size : text.find('\0'));
    char* end = nullptr;
    const double number = StringToDouble(0, text.c_str(), &end);
    const std::string accepted(text.c_str(), static_cast<const char*>(end));
    Require(NumberIn(text) == NumberIn(accepted) || accepted.find('-') != accepted.npos); // "6-1/2x" is a subtraction
    if (!accepted.empty() && accepted.find('-') == accepted.npos) {
        const double product = NumberIn("1*(" + accepted + ")");
        Require(product == number || accepted.find('(') != accepted.npos); // unless it is nested too deeply
    }

    double value = kUntouched;
    const bool isLength = drawcore::ReadLength(text, *drawcore::FindLengthUnit("in"), value);
    Require(std::isfinite(value) && (isLength || value == kUntouched));
    value = kUntouched;
    const bool isAngle = drawcore::ReadAngle(text, drawcore::AngleSystem::Degrees, value);
    Require(std::isfinite(value) && (isAngle || value == kUntouched));
    return 0;
}
