#include "drawcore/src/units/length_text.h"

#include <cmath>

#include "drawcore/src/units/number_text.h"

namespace drawcore {

namespace {

class LengthReader {
public:
    LengthReader(std::string_view text, const LengthUnit& bare) : text_(text), bare_(bare) {}

    bool Read(double& millimetres) {
        SkipBlanks();
        const bool negative = Take('-');
        if (!negative) Take('+');
        double sum = 0;
        const LengthUnit* unit = nullptr;
        if (!ReadPart(sum, unit)) return false;
        if (unit && IsFeet(*unit) && !AtEnd() && !ReadInches(sum)) return false;
        if (!AtEnd() || !std::isfinite(sum)) return false;
        millimetres = negative ? -sum : sum;
        return true;
    }

private:
    static bool IsFeet(const LengthUnit& unit) { return unit.millimetres == 304.8; }

    void SkipBlanks() {
        while (at_ < text_.size() && (text_[at_] == ' ' || text_[at_] == '\t'))
            ++at_;
    }
    bool AtEnd() {
        SkipBlanks();
        return at_ == text_.size();
    }
    bool Take(char c) {
        const bool there = at_ < text_.size() && text_[at_] == c;
        at_ += there;
        return there;
    }
    bool Number(double& value) {
        const size_t length = ScanUnsigned(text_.substr(at_), value);
        at_ += length;
        return length != 0;
    }

    // Inches behind feet: "1'-6", "1' 6 1/2\"".
    bool ReadInches(double& sum) {
        Take('-');
        const LengthUnit& inch = *FindLengthUnit("in");
        const LengthUnit* unit = &inch;
        double inches = 0;
        if (!ReadPart(inches, unit) || unit != &inch) return false;
        sum += inches;
        return true;
    }

    // A number with its unit. unit: what it is without one (null: bare_); what it turned out to be.
    bool ReadPart(double& millimetres, const LengthUnit*& unit) {
        double number = 0;
        if (!ReadMixed(number)) return false;
        const size_t mark = at_;
        SkipBlanks();
        const size_t begin = at_;
        while (at_ < text_.size() && IsUnitCharacter(text_[at_]))
            ++at_;
        if (at_ > begin)
            unit = FindLengthUnit(text_.substr(begin, at_ - begin));
        else {
            at_ = mark;
            unit = unit ? unit : &bare_;
        }
        if (!unit) return false;
        millimetres = number * unit->millimetres;
        return true;
    }

    static bool IsUnitCharacter(char c) {
        return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '\'' || c == '"' || c == '\xB5';
    }

    // "6", "6 1/2", "1/2".
    bool ReadMixed(double& number) {
        if (!Number(number)) return false;
        if (Take('/')) return Divide(number);
        const size_t mark = at_;
        SkipBlanks();
        double part = 0;
        if (at_ > mark && Number(part) && Take('/') && Divide(part))
            number += part;
        else
            at_ = mark;
        return true;
    }
    bool Divide(double& number) {
        double divisor = 0;
        if (!Number(divisor) || divisor == 0) return false;
        number /= divisor;
        return true;
    }

    std::string_view text_;
    const LengthUnit& bare_;
    size_t at_ = 0;
};

} // namespace

bool ReadLength(std::string_view text, const LengthUnit& bare, double& millimetres) {
    return LengthReader(text, bare).Read(millimetres);
}

std::string WriteLength(double millimetres, const LengthUnit& unit, int decimals, bool suffix) {
    std::string text = DecimalText(millimetres / unit.millimetres, decimals);
    if (suffix && !text.empty()) text.append(" ").append(unit.name);
    return text;
}

} // namespace drawcore
