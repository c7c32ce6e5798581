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
    // Letters, feet and inch marks, signs of the code page: the longest run of them, perhaps empty.
    std::string_view TakeWord();

    bool Number(double& value);
    // "6", "6 1/2", "6-1/2", "1/2", "6.5".
    bool Mixed(double& value);

private:
    bool Whole(double& value);
    bool Fraction(double& value);

    std::string_view text_;
    size_t at_ = 0;
};

} // namespace drawcore
