// Parses numbers, words and signs at the cursor.
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

bool TextCursor::Consume(char c) {
    const bool matches = at_ < text_.size() && Lower(text_[at_]) == Lower(c);
    at_ += matches;
    return matches;
}

bool TextCursor::ConsumeMinus() {
    const bool minus = Consume('-');
    if (!minus) Consume('+');
    return minus;
}

char TextCursor::ConsumeOperator(char one, char other) {
    const size_t begin = at_;
    SkipBlanks();
    const char found = Consume(one) ? one : Consume(other) ? other : '\0';
    SkipBlanks();
    const bool doubled = (found == '+' || found == '-') && Next() == found;
    if (found && !doubled) return found;
    at_ = begin;
    return '\0';
}

std::string_view TextCursor::ConsumeWord() {
    const size_t begin = at_;
    while (at_ < text_.size() && IsWordCharacter(text_[at_]))
        ++at_;
    return text_.substr(begin, at_ - begin);
}

std::string_view TextCursor::ConsumeUnit() {
    SkipBlanks();
    return ConsumeWord();
}

bool TextCursor::NumberFollows() {
    SkipBlanks();
    double number = 0;
    return ScanUnsigned(Rest(), number) != 0;
}

bool TextCursor::Number(double& value) {
    const size_t length = ScanUnsigned(Rest(), value);
    at_ += length;
    return length != 0;
}

bool TextCursor::ReadInteger(double& value) {
    const size_t length = ScanInteger(Rest(), value);
    at_ += length;
    return length != 0;
}

bool TextCursor::Fraction(double& value) {
    const size_t begin = at_;
    double over = 0, under = 0;
    if (ReadInteger(over) && Consume('/') && ReadInteger(under) && under > 0) {
        value = over / under;
        return true;
    }
    at_ = begin;
    return false;
}

// join: parses the separator between the two, at least one character.
template <class Join>
bool TextCursor::WholeAndFraction(double& value, Join join) {
    const size_t begin = at_;
    double integer = 0, part = 0;
    if (ReadInteger(integer) && join() && Fraction(part)) {
        value = integer + part;
        return true;
    }
    at_ = begin;
    return false;
}

bool TextCursor::Mixed(double& value) {
    const auto blanks = [this] {
        const size_t begin = at_;
        SkipBlanks();
        return at_ > begin;
    };
    return Fraction(value) || WholeAndFraction(value, blanks) || Number(value);
}

bool TextCursor::JoinedNumber(double& value) {
    return WholeAndFraction(value, [this] { return Consume('-'); }) || Mixed(value);
}

} // namespace drawcore
