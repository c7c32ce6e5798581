// Parses the stored form of MTEXT from left to right, with a stack of formats.

#include "drawcore/src/dxf/inline_codes.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstring>

#include "drawcore/src/dxf/text_decoding.h"

namespace dxf {

namespace {

// Deeper nesting does not occur; it keeps the current format.
constexpr size_t kDeepest = 64;

bool ReadNumber(std::string_view text, double& number) {
    if (!text.empty() && text[0] == '+') text.remove_prefix(1);
    return std::from_chars(text.data(), text.data() + text.size(), number).ec == std::errc() && std::isfinite(number);
}

class InlineReader {
public:
    InlineReader(std::string_view text, double height) : rest_(text), height_(height) {}

    FormattedText Read() {
        while (!rest_.empty())
            ReadNext();
        Finish();
        return std::move(result_);
    }

private:
    char Next() {
        const char c = rest_[0];
        rest_.remove_prefix(1);
        return c;
    }

    // Returns the text up to the next semicolon and skips both.
    std::string_view NextArgument() {
        const size_t length = std::min(rest_.find(';'), rest_.size());
        const std::string_view argument = rest_.substr(0, length);
        rest_.remove_prefix(std::min(length + 1, rest_.size()));
        return argument;
    }

    // Ends the run before a change of format.
    void Finish() {
        if (!text_.empty()) result_.runs.push_back({ReadControlCodes(text_).text, format_});
        text_.clear();
    }

    template <class T>
    void Change(T InlineFormat::*member, T value) {
        if (format_.*member == value) return;
        Finish();
        format_.*member = std::move(value);
    }

    void ReadNext() {
        if (const size_t length = AppendEscape(text_, rest_)) {
            rest_.remove_prefix(length);
            return;
        }
        const char c = Next();
        if (c == '\\' && !rest_.empty()) {
            ReadCode(Next());
        } else if (c == '{') {
            OpenGroup();
        } else if (c == '}') {
            CloseGroup();
        } else if (c == '^' && !rest_.empty()) {
            const char control = Next(); // ^I is a tab, ^J a line feed, "^ " a caret
            if (control == 'I')
                text_ += '\t';
            else if (control == 'J')
                text_ += '\n';
            else if (control != 'M')
                text_ += '^';
            if (control != 'I' && control != 'J' && control != 'M' && control != ' ') text_ += control;
        } else {
            text_ += c;
        }
    }

    void OpenGroup() {
        if (groups_.size() < kDeepest)
            groups_.push_back(format_);
        else
            ++ungrouped_;
    }

    void CloseGroup() {
        if (ungrouped_ > 0) {
            --ungrouped_;
        } else if (!groups_.empty()) {
            Finish();
            format_ = std::move(groups_.back());
            groups_.pop_back();
        }
    }

    void ReadCode(char code) {
        struct Character {
            char code;
            std::string_view text;
        };
        struct Switch {
            char code;
            bool InlineFormat::*member;
            bool value;
        };
        struct WithArgument {
            char code;
            void (InlineReader::*read)(std::string_view argument);
        };
        static constexpr Character kCharacters[] = {{'\\', "\\"}, {'{', "{"},  {'}', "}"}, {'~', "\u00A0"},
                                                    {'P', "\n"},  {'N', "\n"}, {'X', "\n"}};
        static constexpr Switch kSwitches[] = {
            {'L', &InlineFormat::underlined, true},    {'l', &InlineFormat::underlined, false},
            {'O', &InlineFormat::overlined, true},     {'o', &InlineFormat::overlined, false},
            {'K', &InlineFormat::struckThrough, true}, {'k', &InlineFormat::struckThrough, false},
        };
        static constexpr WithArgument kArguments[] = {
            {'F', &InlineReader::ReadFont},  {'f', &InlineReader::ReadFont},      {'H', &InlineReader::ReadHeight},
            {'W', &InlineReader::ReadWidth}, {'C', &InlineReader::ReadColor},     {'c', &InlineReader::ReadTrueColor},
            {'S', &InlineReader::ReadStack}, {'A', &InlineReader::Ignore},        {'Q', &InlineReader::Ignore},
            {'T', &InlineReader::Ignore},    {'p', &InlineReader::ReadParagraph},
        };
        if (const auto* character = FindCode(kCharacters, code))
            text_ += character->text;
        else if (const auto* change = FindCode(kSwitches, code))
            Change(change->member, change->value);
        else if (const auto* format = FindCode(kArguments, code))
            (this->*format->read)(NextArgument());
        else
            text_ += '\\', text_ += code;
    }

    template <class Row, size_t count>
    static const Row* FindCode(const Row (&rows)[count], char code) {
        const Row* found = std::find_if(rows, rows + count, [code](const Row& row) { return row.code == code; });
        return found != rows + count ? found : nullptr;
    }

    void Ignore(std::string_view) {}

    // "Arial|b1|i0|c0|p34"
    void ReadFont(std::string_view argument) {
        const size_t name = std::min(argument.find('|'), argument.size());
        Change(&InlineFormat::font, ToDisplayText(argument.substr(0, name)));
        const std::string_view switches = argument.substr(name);
        if (switches.empty()) return;
        Change(&InlineFormat::bold, switches.find("|b1") != switches.npos);
        Change(&InlineFormat::italic, switches.find("|i1") != switches.npos);
    }

    // Parses "xi-2,l2,qc,t4", of which only the alignment is used; "q*" resets it.
    void ReadParagraph(std::string_view argument) {
        const size_t found = argument.find('q');
        if (found == argument.npos || found + 1 == argument.size()) return;
        const char alignment = argument[found + 1];
        if (alignment == '*')
            Change(&InlineFormat::alignment, char{0});
        else if (std::strchr("lcrjd", alignment))
            Change(&InlineFormat::alignment, alignment);
    }

    // Parses "2.5", a height, or "0.7x", relative to the current one.
    void ReadHeight(std::string_view argument) {
        double number = 0;
        if (!ReadNumber(argument, number) || number <= 0) return;
        const bool relative = argument.back() == 'x' || argument.back() == 'X';
        if (relative)
            Change(&InlineFormat::scale, std::clamp(format_.scale * number, 1e-6, 1e6));
        else if (height_ > 0)
            Change(&InlineFormat::scale, std::clamp(number / height_, 1e-6, 1e6));
    }

    void ReadWidth(std::string_view argument) {
        double number = 0;
        if (ReadNumber(argument, number) && number > 0)
            Change(&InlineFormat::widthFactor, std::clamp(number, 0.01, 100.0));
    }

    void ReadColor(std::string_view argument) {
        double number = 0;
        if (!ReadNumber(argument, number) || number < 0 || number > 256) return;
        Change(&InlineFormat::color, static_cast<int>(number));
        Change(&InlineFormat::trueColor, -1);
    }

    // Stored with blue in the high byte, as in a COLORREF.
    void ReadTrueColor(std::string_view argument) {
        double number = 0;
        if (!ReadNumber(argument, number) || number < 0 || number > 0xFFFFFF) return;
        const auto bgr = static_cast<uint32_t>(number);
        Change(&InlineFormat::trueColor, static_cast<int>((bgr & 0xFF) << 16 | (bgr & 0xFF00) | (bgr >> 16 & 0xFF)));
    }

    // Parses stacked text, "1/2", "1#2" or "+0.1^ -0.1", which is displayed on one line.
    void ReadStack(std::string_view argument) {
        bool divided = false;
        for (size_t i = 0; i < argument.size(); ++i) {
            const char c = argument[i];
            if (c == '\\' && i + 1 < argument.size()) {
                text_ += argument[++i];
            } else if (!divided && (c == '/' || c == '#' || c == '^')) {
                divided = true;
                text_ += '/';
                if (c == '^' && i + 1 < argument.size() && argument[i + 1] == ' ') ++i;
            } else {
                text_ += c;
            }
        }
    }

    std::string_view rest_;
    const double height_;
    std::string text_;
    InlineFormat format_;
    std::vector<InlineFormat> groups_;
    size_t ungrouped_ = 0;
    FormattedText result_;
};

} // namespace

std::string FormattedText::Plain() const {
    std::string plain;
    for (const Run& run : runs)
        plain += run.text;
    return plain;
}

InlineFormat FormattedText::DominantFormat() const {
    const auto longest = std::max_element(runs.begin(), runs.end(),
                                          [](const Run& a, const Run& b) { return a.text.size() < b.text.size(); });
    return longest == runs.end() ? InlineFormat() : longest->format;
}

FormattedText ReadInlineCodes(std::string_view stored, double height) {
    return InlineReader(stored, height).Read();
}

std::string WithReplacedCodes(std::string_view rest, std::string_view letters, const ReplaceCode& replace) {
    constexpr std::string_view kWithArgument = "FfHWCcSAQTp";
    std::string result;
    while (!rest.empty()) {
        std::string escape;
        size_t length = AppendEscape(escape, rest), argument = 0;
        const bool isCode = length == 0 && rest.size() > 1 && rest[0] == '\\';
        if (length == 0) length = isCode ? 2 : 1;
        if (isCode && kWithArgument.find(rest[1]) != kWithArgument.npos) {
            const size_t end = std::min(rest.find(';'), rest.size());
            argument = end - length;
            length = std::min(end + 1, rest.size());
        }
        if (isCode && letters.find(rest[1]) != letters.npos)
            result += replace(rest[1], rest.substr(2, argument));
        else
            result += rest.substr(0, length);
        rest.remove_prefix(length);
    }
    return result;
}

std::string WithoutCodes(std::string_view stored, std::string_view letters) {
    return WithReplacedCodes(stored, letters, [](char, std::string_view) { return std::string(); });
}

} // namespace dxf
