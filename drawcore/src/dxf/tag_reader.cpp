// Splits a DXF text into lines, group codes and numbers.

#include "drawcore/src/dxf/tag_reader.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

#include "drawcore/src/dxf/text_decoding.h"

namespace dxf {

namespace {

constexpr int kLowestCode = -5;
constexpr int kHighestCode = 1071;

// From 2^53 on a double has no fraction; larger coordinates are errors of the writer.
constexpr double kFarthest = 1e15;

std::string_view Trim(std::string_view text) {
    const auto blank = [](char c) { return c == ' ' || c == '\t'; };
    while (!text.empty() && blank(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && blank(text.back()))
        text.remove_suffix(1);
    return text;
}

std::string_view TrimNumber(std::string_view text) {
    text = Trim(text);
    if (text.size() > 1 && text[0] == '+' && text[1] != '-') text.remove_prefix(1);
    return text;
}

[[noreturn]] void FailNumber(const Tag& tag) {
    throw ReadError(tag.line + 1, Quoted(tag.value) + " is not a number (group code " + std::to_string(tag.code) + ")");
}

} // namespace

std::string Quoted(std::string_view text) {
    constexpr size_t kLongest = 40;
    std::string quoted = "'";
    for (char c : text.substr(0, kLongest))
        quoted += c >= ' ' && c <= '~' ? c : '?';
    return quoted + (text.size() > kLongest ? "...'" : "'");
}

std::string_view Tag::Trimmed() const {
    return Trim(value);
}

double Tag::Real() const {
    constexpr double kNone = std::numeric_limits<double>::quiet_NaN();
    const std::string_view text = TrimNumber(value);
    const char* const end = text.data() + text.size();
    double number = 0;
    const auto [rest, error] = std::from_chars(text.data(), end, number);
    if (error == std::errc::invalid_argument) FailNumber(*this);
    if (error == std::errc::result_out_of_range)
        return text.find("e-") == text.npos && text.find("E-") == text.npos ? kNone : 0;
    if (rest != end) {
        if (*rest != '#') FailNumber(*this); // old C run-time libraries write "1.#INF" and "-1.#IND"
        return kNone;
    }
    return std::abs(number) <= kFarthest ? number : kNone;
}

int Tag::Integer() const {
    if (const auto number = ParseNumber<int>(TrimNumber(value))) return *number;
    const double real = Real();
    if (std::isnan(real)) return 0;
    constexpr double kLow = std::numeric_limits<int>::min();
    constexpr double kHigh = std::numeric_limits<int>::max();
    return static_cast<int>(std::clamp(real, kLow, kHigh));
}

TagReader::TagReader(std::string_view bytes, const Progress& progress)
    : at_(bytes.data()), begin_(at_), end_(at_ + bytes.size()), reportAt_(progress ? 0 : SIZE_MAX),
      progress_(progress) {}

bool TagReader::NextLine(std::string_view& line) {
    if (at_ == end_) return false;
    const char* const start = at_;
    while (at_ != end_ && *at_ != '\n' && *at_ != '\r')
        ++at_;
    line = std::string_view(start, static_cast<size_t>(at_ - start));
    if (at_ != end_ && *at_++ == '\r' && at_ != end_ && *at_ == '\n') ++at_;
    ++line_;
    return true;
}

int TagReader::ParseCode(std::string_view text) const {
    const std::optional<int> code = ParseNumber<int>(Trim(text));
    if (!code) throw ReadError(line_, "group code " + Quoted(text) + " is not a number");
    if (*code < kLowestCode || *code > kHighestCode)
        throw ReadError(line_, "invalid group code " + std::to_string(*code));
    return *code;
}

void TagReader::FailAtEnd() const {
    const std::string where = context_ ? std::string("within ") + context_ : "without EOF";
    throw ReadError(line_, "the file is truncated: it ends " + where);
}

const Tag& TagReader::Next() {
    do {
        std::string_view code;
        tag_.offset = Offset();
        if (!NextLine(code)) FailAtEnd();
        tag_.code = ParseCode(code);
        tag_.line = line_;
        if (!NextLine(tag_.value)) FailAtEnd();
    } while (tag_.code == 999);
    const size_t done = Offset();
    if (done >= reportAt_) {
        const auto total = static_cast<size_t>(end_ - begin_);
        progress_(static_cast<int>(static_cast<double>(done) / static_cast<double>(total) * 999));
        reportAt_ = done + std::max<size_t>(total / 200, 1 << 16);
    }
    return tag_;
}

const Tag& TagReader::Seek(size_t offset) {
    at_ = begin_ + offset;
    line_ = 0;
    return Next();
}

const Tag& TagReader::SkipRecord() {
    while (!Next().StartsRecord()) {
    }
    return tag_;
}

} // namespace dxf
