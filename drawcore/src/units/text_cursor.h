// Reads a text from left to right, piece by piece: what lengths and angles are made of.
#pragma once

#include <string_view>

#include "drawcore/src/units/number_text.h"

namespace drawcore {

class TextCursor {
public:
    explicit TextCursor(std::string_view text) : text_(text) {}

    bool AtEnd(); // apart from blanks
    std::string_view Rest() const { return text_.substr(at_); }
    void SkipBlanks();
    // Takes the character if it comes next, in either case of a letter.
    bool Take(char c);
    // A plus or minus, or none; true for a minus.
    bool TakeMinus();
    // One of the two with any blanks around it, and which it was; 0, and nothing taken, if neither comes next, or if a
    // sign follows a sign.
    char TakeOperator(char one, char other);
    // Letters, feet and inch marks, signs of the code page: the longest run of them, perhaps empty.
    std::string_view TakeWord();
    // The same behind blanks.
    std::string_view TakeUnit();

    bool Number(double& value);
    bool NumberFollows(); // behind blanks
    // "6", "6 1/2", "1/2", "6.5".
    bool Mixed(double& value);
    // The same, and "6-1/2".
    bool JoinedNumber(double& value);

private:
    char Next() const { return at_ < text_.size() ? text_[at_] : '\0'; }
    bool Whole(double& value);
    bool Fraction(double& value);
    template <class Join>
    bool WholeAndFraction(double& value, Join join);

    std::string_view text_;
    size_t at_ = 0;
};

} // namespace drawcore
