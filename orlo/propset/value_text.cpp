// Parses dates, money, integers and class IDs.

#include "orlo/propset/value_text.h"

#include <charconv>
#include <cstring>
#include <optional>
#include <string>

namespace orlo {

namespace {

constexpr int64_t kTicksPerSecond = 10'000'000;
constexpr int64_t kSecondsPerDay = 86'400;

// The part of a text that has not been parsed yet.
class TextParser {
public:
    explicit TextParser(std::string_view text) : text_(text) {}
    bool IsEmpty() const { return text_.empty(); }
    bool Take(char character) {
        if (text_.empty() || text_.front() != character) return false;
        text_.remove_prefix(1);
        return true;
    }
    // Parses exactly that many digits.
    bool TakeDigits(size_t count, int base, uint64_t& number) {
        if (text_.size() < count) return false;
        const auto [end, error] = std::from_chars(text_.data(), text_.data() + count, number, base);
        if (error != std::errc() || end != text_.data() + count) return false;
        text_.remove_prefix(count);
        return true;
    }
    // Parses the whole text.
    template <class Number>
    bool TakeNumber(Number& number) {
        const auto [end, error] = std::from_chars(text_.data(), text_.data() + text_.size(), number);
        if (text_.empty() || error != std::errc() || end != text_.data() + text_.size()) return false;
        text_ = {};
        return true;
    }

private:
    std::string_view text_;
};

// Returns the days since 1601-01-01 in the Gregorian calendar.
int64_t DaysFrom1601(int64_t year, int64_t month, int64_t day) {
    // In years that start in March, the leap day is the last day.
    const int64_t shifted = month > 2 ? month - 3 : month + 9;
    const int64_t marchYear = month > 2 ? year : year - 1;
    const int64_t days = 365 * marchYear + marchYear / 4 - marchYear / 100 + marchYear / 400;
    return days + (153 * shifted + 2) / 5 + day - 1 - 584'694; // days from the start of the computation to 1601-01-01
}

bool IsDate(uint64_t year, uint64_t month, uint64_t day) {
    constexpr int kDays[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    if (year < 1601 || month < 1 || month > 12 || day < 1) return false;
    const bool isLeap = year % 4 == 0 && (year % 100 != 0 || year % 400 == 0);
    return day <= static_cast<uint64_t>(kDays[month - 1] + (month == 2 && isLeap ? 1 : 0));
}

// Reads "04:05" or "04:05:06" and returns the seconds.
std::optional<uint64_t> ReadTime(TextParser& rest) {
    uint64_t hour, minute, second = 0;
    if (!rest.TakeDigits(2, 10, hour) || !rest.Take(':') || !rest.TakeDigits(2, 10, minute)) return std::nullopt;
    if (rest.Take(':') && !rest.TakeDigits(2, 10, second)) return std::nullopt;
    if (hour > 23 || minute > 59 || second > 59) return std::nullopt;
    return hour * 3600 + minute * 60 + second;
}

// Returns the seconds since 1601 for "2001-02-03", optionally with "T04:05" or " 04:05:06", and a final Z if it is
// allowed.
std::optional<int64_t> ReadDate(std::string_view text, bool isUtc) {
    TextParser rest(text);
    uint64_t year, month, day;
    if (!rest.TakeDigits(4, 10, year) || !rest.Take('-') || !rest.TakeDigits(2, 10, month) || !rest.Take('-') ||
        !rest.TakeDigits(2, 10, day) || !IsDate(year, month, day))
        return std::nullopt;
    const bool hasTime = rest.Take('T') || rest.Take(' ');
    const std::optional<uint64_t> time = hasTime ? ReadTime(rest) : uint64_t{0};
    if (hasTime && isUtc) rest.Take('Z');
    if (!time || !rest.IsEmpty()) return std::nullopt;
    const int64_t days =
        DaysFrom1601(static_cast<int64_t>(year), static_cast<int64_t>(month), static_cast<int64_t>(day));
    return days * kSecondsPerDay + static_cast<int64_t>(*time);
}

std::optional<uint64_t> ReadFileTime(std::string_view text) {
    uint64_t ticks;
    if (TextParser(text).TakeNumber(ticks)) return ticks;
    const std::optional<int64_t> seconds = ReadDate(text, true);
    if (!seconds) return std::nullopt;
    return static_cast<uint64_t>(*seconds * kTicksPerSecond);
}

// Returns the days since 1899-12-30.
std::optional<double> ReadOleDate(std::string_view text) {
    const std::optional<int64_t> seconds = ReadDate(text, false);
    if (!seconds) return std::nullopt;
    const int64_t second = *seconds - DaysFrom1601(1899, 12, 30) * kSecondsPerDay;
    int64_t days = second / kSecondsPerDay;
    int64_t ofDay = second % kSecondsPerDay;
    if (ofDay < 0) {
        ofDay += kSecondsPerDay;
        --days;
    }
    const double part = static_cast<double>(ofDay) / kSecondsPerDay; // the fraction counts forward even before 1899
    return days < 0 ? static_cast<double>(days) - part : static_cast<double>(days) + part;
}

// Returns ten-thousandths: the digits without the decimal point, padded to four decimals.
std::optional<int64_t> ReadMoney(std::string_view text) {
    const size_t point = text.find('.');
    const std::string_view whole = text.substr(0, point);
    const std::string_view decimals = point == std::string_view::npos ? "" : text.substr(point + 1);
    const bool endsInPoint = point != std::string_view::npos && decimals.empty();
    if (whole.empty() || whole == "-" || endsInPoint || decimals.size() > 4) return std::nullopt;
    std::string digits(whole);
    digits += decimals;
    digits.append(4 - decimals.size(), '0');
    int64_t number;
    if (!TextParser(digits).TakeNumber(number)) return std::nullopt;
    return number;
}

std::optional<GUID> ReadGuid(std::string_view text) {
    if (text.size() == 38 && text.front() == '{' && text.back() == '}') text = text.substr(1, 36);
    TextParser rest(text);
    uint64_t first = 0, second = 0, third = 0, fourth = 0, fifth = 0;
    const bool whole = rest.TakeDigits(8, 16, first) && rest.Take('-') && rest.TakeDigits(4, 16, second) &&
                       rest.Take('-') && rest.TakeDigits(4, 16, third) && rest.Take('-') &&
                       rest.TakeDigits(4, 16, fourth) && rest.Take('-') && rest.TakeDigits(12, 16, fifth) &&
                       rest.IsEmpty();
    if (!whole) return std::nullopt;
    GUID guid{static_cast<uint32_t>(first), static_cast<uint16_t>(second), static_cast<uint16_t>(third), {}};
    const uint64_t tail = fourth << 48 | fifth;
    for (int i = 0; i < 8; ++i)
        guid.Data4[i] = static_cast<uint8_t>(tail >> (56 - 8 * i));
    return guid;
}

template <class Number>
bool Store(const std::optional<Number>& number, uint8_t* element) {
    if (number) std::memcpy(element, &*number, sizeof *number);
    return number.has_value();
}

std::optional<int64_t> ReadLong(std::string_view text) {
    int64_t number;
    return TextParser(text).TakeNumber(number) ? std::optional(number) : std::nullopt;
}

} // namespace

bool ParseValueText(std::string_view text, uint32_t type, uint8_t* element) {
    switch (type) {
    case VT_I8:
        return Store(ReadLong(text), element);
    case VT_CY:
        return Store(ReadMoney(text), element);
    case VT_DATE:
        return Store(ReadOleDate(text), element);
    case VT_FILETIME:
        return Store(ReadFileTime(text), element);
    case VT_CLSID:
        return Store(ReadGuid(text), element);
    default:
        return false;
    }
}

} // namespace orlo
