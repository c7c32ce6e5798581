// One form for each type of value.

#include "value_display.h"

#include <algorithm>
#include <cinttypes>
#include <cmath>
#include <cstdio>
#include <windows.h>

#include "fields.h"
#include "text.h"

namespace suminfo {
namespace {

constexpr uint64_t kSecond = 10000000; // in 100 ns

std::string Printed(const char* format, ...) __attribute__((format(gnu_printf, 1, 2)));
std::string Printed(const char* format, ...) {
    char text[64];
    va_list arguments;
    va_start(arguments, format);
    __mingw_vsnprintf(text, sizeof text, format, arguments);
    va_end(arguments);
    return text;
}

std::string Span(uint64_t ticks) {
    const uint64_t seconds = ticks / kSecond;
    return Printed("%" PRIu64 ":%02d:%02d", seconds / 3600, static_cast<int>(seconds / 60 % 60),
                   static_cast<int>(seconds % 60));
}

std::string Moment(uint64_t ticks) {
    if (ticks == 0) return "never";
    const FILETIME fileTime = {static_cast<DWORD>(ticks), static_cast<DWORD>(ticks >> 32)};
    SYSTEMTIME time;
    if (!::FileTimeToSystemTime(&fileTime, &time)) return std::to_string(ticks) + " (no date)";
    return Printed("%04d-%02d-%02d %02d:%02d:%02d UTC", time.wYear, time.wMonth, time.wDay, time.wHour,
                   time.wMinute, time.wSecond);
}

// Days since the end of 1899, the hours are the fraction.
std::string DayNumber(double days) {
    constexpr double kDaysFrom1601 = 109205;
    const double ticks = (days + kDaysFrom1601) * 86400.0 * kSecond;
    if (!(ticks >= 0) || ticks > 9e18) return Printed("day %.17g", days);
    const std::string moment = Moment(static_cast<uint64_t>(std::llround(ticks / kSecond)) * kSecond);
    return moment.substr(0, moment.find(" UTC")); // the type has no time zone
}

std::string Money(int64_t tenThousandths) {
    const uint64_t size = tenThousandths < 0 ? 0 - static_cast<uint64_t>(tenThousandths)
                                             : static_cast<uint64_t>(tenThousandths);
    return Printed("%s%" PRIu64 ".%04d", tenThousandths < 0 ? "-" : "", size / 10000,
                   static_cast<int>(size % 10000));
}

std::string Real(double number) {
    // The shortest form that reads back as the same number.
    for (int digits = 1; digits < 17; ++digits) {
        const std::string text = Printed("%.*g", digits, number);
        if (std::strtod(text.c_str(), nullptr) == number) return text;
    }
    return Printed("%.17g", number);
}

std::string Bytes(size_t count) {
    return std::to_string(count) + (count == 1 ? " byte" : " bytes");
}

std::string Picture(const orlo::ClipboardData& clip) {
    constexpr int32_t kWindows = -1, kMacintosh = -2;
    std::string kind = "data of clipboard format " + std::to_string(clip.format);
    if (clip.tag == kWindows && clip.format == CF_METAFILEPICT) kind = "metafile picture";
    if (clip.tag == kWindows && clip.format == CF_DIB) kind = "bitmap";
    if (clip.tag == kWindows && clip.format == CF_ENHMETAFILE) kind = "enhanced metafile";
    if (clip.tag == kMacintosh) kind = "Macintosh picture";
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
    if (const auto* text = std::get_if<std::string>(&value.data)) return OneLine(*text);
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
        dictionary_.emplace(entry.id, &entry.name); // the first, if there are more
}

std::string PropertyNames::Of(uint32_t id) const {
    const auto named = dictionary_.find(id);
    if (named != dictionary_.end()) return OneLine(*named->second);
    if (const Field* field = FieldOf(format_, id)) return field->name;
    if (id == kCodePageId) return "code page";
    if (id == kLocaleId) return "locale";
    return "property " + std::to_string(id);
}

std::string PropertyShown(const orlo::ImageSection& section, const orlo::ImageProperty& property) {
    if (property.state == orlo::ValueState::opaque)
        return "(" + orlo::TypeName(property.type) + ", " + Bytes(property.bytes.size()) + ")";
    if (property.state == orlo::ValueState::partial)
        return "(damaged: " + orlo::TypeName(property.type) + ")";
    if (property.id == kCodePageId && section.codePage) return std::to_string(*section.codePage);
    orlo::Value value;
    if (!orlo::DecodeValue(property.type, property.bytes.data(), property.bytes.size(), section.codePage,
                           value))
        return "(not readable as " + orlo::TypeName(property.type) + ")";
    return Shown(value, IsSpan(section, property.id));
}

} // namespace suminfo
