// A cursor for parsing the parts of lengths and angles.
#pragma once

#include <string_view>

#include "drawcore/src/units/number_text.h"

namespace drawcore {

class TextCursor {
public:
    explicit TextCursor(std::string_view text) : text_(text) {}

    bool AtEnd(); // ignoring blanks
    std::string_view Rest() const { return text_.substr(at_); }
    void SkipBlanks();
    // Consumes the character if it comes next, ignoring case.
    bool Consume(char c);
    // Consumes an optional sign. Returns true for a minus.
    bool ConsumeMinus();
    // Consumes one of the two operators, which blanks may surround, and returns it. Returns 0 and consumes nothing if
    // neither comes next or a sign follows a sign.
    char ConsumeOperator(char one, char other);
    // Consumes the longest run of letters, foot and inch signs and non-ASCII characters, which may be empty.
    std::string_view ConsumeWord();
    // Does the same after skipping blanks.
    std::string_view ConsumeUnit();

    bool Number(double& value);
    bool NumberFollows(); // after skipping blanks
    // Parses "6", "6 1/2", "1/2" or "6.5".
    bool Mixed(double& value);
    // Also parses "6-1/2".
    bool JoinedNumber(double& value);

private:
    char Next() const { return at_ < text_.size() ? text_[at_] : '\0'; }
    bool ReadInteger(double& value);
    bool Fraction(double& value);
    template <class Join>
    bool WholeAndFraction(double& value, Join join);

    std::string_view text_;
    size_t at_ = 0;
};

} // namespace drawcore
