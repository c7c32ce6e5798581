// Formats values for display, by type.

#include "value_display.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <objidl.h>

#include "fields.h"
#include "picture_format.h"
#include "text.h"
#include "tools/cli/printable.h"

namespace suminfo {
namespace {

constexpr uint64_t kSecond = 10000000; // in units of 100 ns
constexpr uint64_t kSecondsOfDay = 86400;

std::string Padded(uint64_t number, size_t digits) {
    const std::string text = std::to_string(number);
    return std::string(digits - std::min(digits, text.size()), '0') + text;
}

std::string TimeOf(uint64_t seconds, size_t hourDigits) {
    return Padded(seconds / 3600, hourDigits) + ":" + Padded(seconds / 60 % 60, 2) + ":" + Padded(seconds % 60, 2);
}

std::string Span(uint64_t ticks) {
    return TimeOf(ticks / kSecond, 1);
}

// Formats days since 1601. Years are counted from March, so that the leap day is their last day.
std::string DateOf(uint64_t days) {
    constexpr uint64_t kDaysOf400Years = 146097, kDaysFromMarch1600 = 306;
    const uint64_t since1600 = days + kDaysFromMarch1600;
    const uint64_t day = since1600 % kDaysOf400Years; // within these 400 years
    const uint64_t year = (day - day / 1460 + day / 36524 - day / (kDaysOf400Years - 1)) / 365;
    const uint64_t dayOfYear = day - (365 * year + year / 4 - year / 100);
    const uint64_t monthFromMarch = (5 * dayOfYear + 2) / 153; // five consecutive months have 153 days
    const uint64_t month = monthFromMarch < 10 ? monthFromMarch + 3 : monthFromMarch - 9;
    const uint64_t dayOfMonth = dayOfYear - (153 * monthFromMarch + 2) / 5 + 1;
    const uint64_t calendarYear = 1600 + 400 * (since1600 / kDaysOf400Years) + year + (month < 3);
    return Padded(calendarYear, 4) + "-" + Padded(month, 2) + "-" + Padded(dayOfMonth, 2);
}

std::string Moment(uint64_t ticks) {
    if (ticks == 0) return "never";
    if (ticks > INT64_MAX) return std::to_string(ticks) + " (no date)"; // out of range for Windows as well
    const uint64_t seconds = ticks / kSecond;
    return DateOf(seconds / kSecondsOfDay) + " " + TimeOf(seconds % kSecondsOfDay, 2) + " UTC";
}

std::string Digits(double number, int digits) {
    std::array<char, 32> text;
    const auto end = std::to_chars(text.data(), text.data() + text.size(), number, std::chars_format::general, digits);
    return std::string(text.data(), end.ptr);
}

// Formats days since the end of 1899, with the time as the fraction.
std::string DayNumber(double days) {
    constexpr double kDaysFrom1601 = 109205;
    const double ticks = (days + kDaysFrom1601) * static_cast<double>(kSecondsOfDay * kSecond);
    if (!(ticks >= 0) || ticks > 9e18) return "day " + Digits(days, 17);
    const std::string moment = Moment(static_cast<uint64_t>(std::llround(ticks / kSecond)) * kSecond);
    return moment.substr(0, moment.find(" UTC")); // the type has no time zone
}

std::string Money(int64_t tenThousandths) {
    const uint64_t size =
        tenThousandths < 0 ? 0 - static_cast<uint64_t>(tenThousandths) : static_cast<uint64_t>(tenThousandths);
    return (tenThousandths < 0 ? "-" : "") + std::to_string(size / 10000) + "." + Padded(size % 10000, 4);
}

std::string Real(double number) {
    // Finds the shortest text that is parsed back as the same number.
    for (int digits = 1; digits < 17; ++digits) {
        const std::string text = Digits(number, digits);
        if (std::strtod(text.c_str(), nullptr) == number) return text;
    }
    return Digits(number, 17);
}

std::string Bytes(size_t count) {
    return std::to_string(count) + (count == 1 ? " byte" : " bytes");
}

std::string Picture(const orlo::ClipboardData& clip) {
    std::string kind = "data of clipboard format " + std::to_string(clip.format);
    if (clip.tag == kOfWindows && clip.format == kMetafilePicture) kind = "metafile picture";
    if (clip.tag == kOfWindows && clip.format == kBitmap) kind = "bitmap";
    if (clip.tag == kOfWindows && clip.format == kEnhancedMetafile) kind = "enhanced metafile";
    if (clip.tag == kOfMacintosh) kind = "Macintosh picture";
    return kind + ", " + Bytes(clip.data.size());
}

bool IsSpan(const orlo::ImageSection& section, uint32_t id) {
    return ::IsEqualGUID(section.formatId, kSummaryFormat) && id == 10;
}

std::string Shown(const orlo::Value& value, bool span);

std::string List(const orlo::Value& value) {
    if (value.elements.empty()) return "(empty list)";
    std::string text;
    for (const orlo::Value& element : value.elements)
        text += (&element == &value.elements.front() ? "" : "; ") + Shown(element, false);
    return text;
}

std::string Shown(const orlo::Value& value, bool span) {
    if (value.type & VT_VECTOR) return List(value);
    if (const auto* text = std::get_if<std::string>(&value.data)) return cli::OneLine(*text);
    if (const auto* truth = std::get_if<bool>(&value.data)) return *truth ? "yes" : "no";
    if (const auto* number = std::get_if<int64_t>(&value.data))
        return value.type == VT_CY ? Money(*number) : std::to_string(*number);
    if (const auto* number = std::get_if<uint64_t>(&value.data)) {
        if (value.type != VT_FILETIME) return std::to_string(*number);
        return span ? Span(*number) : Moment(*number);
    }
    if (const auto* number = std::get_if<double>(&value.data))
        return value.type == VT_DATE ? DayNumber(*number) : Real(*number);
    if (const auto* bytes = std::get_if<orlo::Bytes>(&value.data)) return Bytes(bytes->size());
    if (const auto* clip = std::get_if<orlo::ClipboardData>(&value.data)) return Picture(*clip);
    if (const auto* guid = std::get_if<GUID>(&value.data)) return orlo::GuidText(*guid);
    return "(empty)";
}

} // namespace

PropertyNames::PropertyNames(const orlo::ImageSection& section) : format_(section.formatId) {
    if (!section.dictionary) return;
    for (const orlo::DictionaryEntry& entry : *section.dictionary)
        if (entry.undecoded.empty()) dictionary_.emplace(entry.id, &entry.name); // the first if there are several
}

std::string PropertyNames::Of(uint32_t id) const {
    const auto named = dictionary_.find(id);
    if (named != dictionary_.end()) return cli::OneLine(*named->second);
    if (const Field* field = FieldOf(format_, id)) return field->name;
    if (id == kCodePageId) return "code page";
    if (id == kLocaleId) return "locale";
    return "property " + std::to_string(id);
}

std::string PropertyShown(const orlo::ImageSection& section, const orlo::ImageProperty& property) {
    if (property.state == orlo::ValueState::opaque)
        return "(" + orlo::TypeName(property.type) + ", " + Bytes(property.bytes.size()) + ")";
    if (property.state == orlo::ValueState::partial) return "(damaged: " + orlo::TypeName(property.type) + ")";
    if (property.id == kCodePageId && section.codePage) return std::to_string(*section.codePage);
    orlo::Value value;
    if (!orlo::DecodeValue(property.type, property.bytes.data(), property.bytes.size(), section.codePage, value))
        return "(not readable as " + orlo::TypeName(property.type) + ")";
    return Shown(value, IsSpan(section, property.id));
}

} // namespace suminfo
