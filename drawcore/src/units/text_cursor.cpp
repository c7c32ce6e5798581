// Numbers, words and signs at the cursor.
#include "drawcore/src/units/text_cursor.h"

namespace drawcore {

namespace {

char Lower(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

bool IsWordCharacter(char c) {
    const char lower = Lower(c);
    return (lower >= 'a' && lower <= 'z') || c == '\'' || c == '"' || static_cast<unsigned char>(c) >= 0x80;
}

} // namespace

void TextCursor::SkipBlanks() {
    while (at_ < text_.size() && (text_[at_] == ' ' || text_[at_] == '\t'))
        ++at_;
}

bool TextCursor::AtEnd() {
    SkipBlanks();
    return at_ == text_.size();
}

bool TextCursor::Take(char c) {
    const bool there = at_ < text_.size() && Lower(text_[at_]) == Lower(c);
    at_ += there;
    return there;
}

bool TextCursor::TakeMinus() {
    const bool minus = Take('-');
    if (!minus) Take('+');
    return minus;
}

std::string_view TextCursor::TakeWord() {
    const size_t begin = at_;
    while (at_ < text_.size() && IsWordCharacter(text_[at_]))
        ++at_;
    return text_.substr(begin, at_ - begin);
}

bool TextCursor::Number(double& value) {
    const size_t length = ScanUnsigned(Rest(), value);
    at_ += length;
    return length != 0;
}

bool TextCursor::Whole(double& value) {
    const size_t length = ScanWhole(Rest(), value);
    at_ += length;
    return length != 0;
}

bool TextCursor::Fraction(double& value) {
    const size_t begin = at_;
    double over = 0, under = 0;
    if (Whole(over) && Take('/') && Whole(under) && under > 0) {
        value = over / under;
        return true;
    }
    at_ = begin;
    return false;
}

bool TextCursor::Mixed(double& value) {
    if (Fraction(value)) return true;
    const size_t begin = at_;
    double part = 0;
    if (Whole(value)) {
        const size_t behind = at_;
        if (!Take('-')) SkipBlanks();
        if (at_ > behind && Fraction(part)) {
            value += part;
            return true;
        }
    }
    at_ = begin;
    return Number(value);
}

} // namespace drawcore
