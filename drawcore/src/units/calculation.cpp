// A recursive-descent parser for sums, products and factors that backtracks to the last complete expression.
#include "drawcore/src/units/calculation.h"

#include <cmath>

namespace drawcore {

namespace {

constexpr int kDeepest = 32; // maximum nesting depth of parentheses

// Rounds to double precision, because 32-bit processors compute with a larger range.
double Stored(double value) {
    volatile double stored = value;
    return stored;
}

class Calculation {
public:
    // measure: null for plain numbers.
    Calculation(TextCursor& cursor, const Measure* measure) : cursor_(cursor), measure_(measure) {}

    bool Sum(Quantity& result) {
        if (!Product(result)) return false;
        for (;;) {
            const TextCursor before = cursor_;
            Quantity next;
            const char sign = cursor_.ConsumeOperator('+', '-');
            if (sign && Product(next) && Add(result, next, sign == '-' ? -1 : 1)) continue;
            cursor_ = before;
            return true;
        }
    }

private:
    bool Product(Quantity& result) {
        if (!Factor(result, false)) return false;
        for (;;) {
            const TextCursor before = cursor_;
            Quantity next;
            const char sign = cursor_.ConsumeOperator('*', '/');
            if (sign == '*' && Factor(next, false) && Multiply(result, next)) continue;
            if (sign == '/' && Factor(next, true) && Divide(result, next)) continue;
            cursor_ = before;
            return true;
        }
    }

    // A divisor is not parsed as a fraction, because "8/4/2" would become 8 / (4/2).
    bool Factor(Quantity& result, bool divisor) {
        const TextCursor before = cursor_;
        const bool negative = cursor_.ConsumeMinus();
        if (cursor_.Consume('(') ? Parenthesis(result) : divisor ? cursor_.Number(result.value) : Operand(result)) {
            if (negative) result.value = -result.value;
            return true;
        }
        cursor_ = before;
        return false;
    }

    bool Operand(Quantity& result) {
        return measure_ ? measure_->ReadOne(cursor_, result) : cursor_.Mixed(result.value);
    }

    bool Parenthesis(Quantity& result) {
        if (depth_ == kDeepest) return false;
        ++depth_;
        cursor_.SkipBlanks();
        const bool read = Sum(result);
        --depth_;
        cursor_.SkipBlanks();
        return read && cursor_.Consume(')') && (!measure_ || result.measured || UnitOfParenthesis(result));
    }

    bool UnitOfParenthesis(Quantity& result) {
        const TextCursor before = cursor_;
        const std::string_view name = cursor_.ConsumeUnit();
        const double unit = measure_->Unit(name);
        if (unit) return Set(result, {result.value * unit, true});
        cursor_ = before;
        return name.empty();
    }

    bool Add(Quantity& sum, Quantity next, double sign) const {
        const bool measured = sum.measured || next.measured;
        for (Quantity* part : {&sum, &next})
            if (measured && !part->measured) part->value *= measure_->DefaultUnit();
        return Set(sum, {Stored(sum.value + sign * next.value), measured});
    }

    static bool Multiply(Quantity& product, Quantity next) {
        if (product.measured && next.measured) return false;
        const double value = Stored(product.value * next.value);
        const bool underflows = value == 0 && product.value != 0 && next.value != 0;
        return !underflows && Set(product, {value, product.measured || next.measured});
    }

    static bool Divide(Quantity& quotient, Quantity divisor) {
        if (divisor.measured || divisor.value == 0) return false;
        const double value = Stored(quotient.value / divisor.value);
        const bool underflows = value == 0 && quotient.value != 0;
        return !underflows && Set(quotient, {value, quotient.measured});
    }

    static bool Set(Quantity& quantity, Quantity result) {
        if (!std::isfinite(result.value)) return false;
        quantity = result;
        return true;
    }

    TextCursor& cursor_;
    const Measure* measure_;
    int depth_ = 0;
};

// Parses a single number of the measure.
bool ReadLiteral(TextCursor cursor, const Measure& measure, double& value) {
    Quantity one;
    const bool negative = cursor.ConsumeMinus();
    if (!measure.ReadOne(cursor, one) || !cursor.AtEnd()) return false;
    const double size = one.measured ? one.value : one.value * measure.DefaultUnit();
    value = negative ? -size : size;
    return true;
}

bool ReadWithoutUnit(TextCursor cursor, const Measure& measure, double& value) {
    double number = 0;
    if (!ReadCalculation(cursor, number) || !cursor.AtEnd()) return false;
    value = number * measure.DefaultUnit();
    return true;
}

// Parses a calculation with plain numbers and one unit for the result.
bool ReadWithLastUnit(TextCursor cursor, const Measure& measure, double& value) {
    double number = 0;
    if (!ReadCalculation(cursor, number)) return false;
    const double unit = measure.Unit(cursor.ConsumeUnit());
    value = number * unit;
    return unit != 0 && cursor.AtEnd();
}

bool ReadWithUnits(TextCursor cursor, const Measure& measure, double& value) {
    Quantity sum;
    if (!Calculation(cursor, &measure).Sum(sum) || !cursor.AtEnd()) return false;
    value = sum.value;
    return sum.measured;
}

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

// Returns whether the text contains a term like "6-1/2", which with units could mean six and a half or five and a half.
bool HasJoinedFraction(std::string_view text) {
    for (size_t hyphen = text.find('-'); hyphen != text.npos; hyphen = text.find('-', hyphen + 1)) {
        const size_t bar = text.find_first_not_of("0123456789", hyphen + 1);
        const bool fraction = bar != text.npos && bar > hyphen + 1 && text[bar] == '/';
        if (fraction && hyphen > 0 && IsDigit(text[hyphen - 1])) return true;
    }
    return false;
}

} // namespace

bool ReadCalculation(TextCursor& cursor, double& value) {
    TextCursor literal = cursor;
    const bool negative = literal.ConsumeMinus();
    double number = 0;
    if (literal.JoinedNumber(number) && TextCursor(literal).AtEnd()) {
        cursor = literal;
        value = negative ? -number : number;
        return true;
    }
    Quantity sum;
    if (!Calculation(cursor, nullptr).Sum(sum)) return false;
    value = sum.value;
    return true;
}

bool ReadMeasured(std::string_view text, const Measure& measure, double& value) {
    if (text.size() > kLongestText) return false;
    TextCursor cursor(text);
    cursor.SkipBlanks();
    double read = 0;
    const bool known =
        ReadLiteral(cursor, measure, read) || ReadWithoutUnit(cursor, measure, read) ||
        (!HasJoinedFraction(text) && (ReadWithLastUnit(cursor, measure, read) || ReadWithUnits(cursor, measure, read)));
    if (!known || !std::isfinite(read)) return false;
    value = read;
    return true;
}

} // namespace drawcore
