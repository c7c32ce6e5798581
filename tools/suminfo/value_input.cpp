// Strict parsers for each type of value: text is rejected unless all of it is valid.

#include "value_input.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <charconv>
#include <chrono>
#include <cstdlib>

#include "failure.h"
#include "orlo/propset/code_page.h"
#include "orlo/propset/value_text.h"

namespace suminfo {
namespace {

struct TypeWord {
    const char* word;
    uint32_t type;
};
constexpr std::array kTypeWords = {
    TypeWord{"text", VT_LPSTR}, TypeWord{"wide", VT_LPWSTR}, TypeWord{"int", VT_I4},    TypeWord{"unsigned", VT_UI4},
    TypeWord{"long", VT_I8},    TypeWord{"number", VT_R8},   TypeWord{"bool", VT_BOOL}, TypeWord{"date", VT_FILETIME},
    TypeWord{"money", VT_CY},   TypeWord{"guid", VT_CLSID},
};

[[noreturn]] void ThrowNotAValue(const std::string& text, const std::string& kind) {
    throw Failure("'" + text + "' is not a " + kind);
}

template <typename Number>
Number ParseInteger(const std::string& text, const char* kind) {
    Number number = 0;
    const char* end = text.data() + text.size();
    const auto [stopped, error] = std::from_chars(text.data(), end, number);
    if (error != std::errc() || stopped != end || text.empty()) ThrowNotAValue(text, kind);
    return number;
}

double Real(const std::string& text) {
    char* end = nullptr;
    errno = 0;
    const double number = std::strtod(text.c_str(), &end);
    if (text.empty() || *end != '\0' || errno == ERANGE) ThrowNotAValue(text, "number");
    return number;
}

bool Truth(const std::string& text) {
    for (const char* yes : {"true", "yes", "1"})
        if (orlo::IsSameName(text, yes)) return true;
    for (const char* no : {"false", "no", "0"})
        if (orlo::IsSameName(text, no)) return false;
    ThrowNotAValue(text, "bool (true or false)");
}

uint64_t Now() {
    constexpr uint64_t kSecond = 10000000, kSecondsTo1970 = 11644473600; // since 1601
    const auto now = std::chrono::system_clock::now().time_since_epoch();
    const auto seconds = std::chrono::duration_cast<std::chrono::seconds>(now).count();
    return (static_cast<uint64_t>(seconds) + kSecondsTo1970) * kSecond;
}

// The types whose text forms are implemented by the library.
constexpr struct {
    uint32_t type;
    const char* kind;
} kFormats[] = {
    {VT_FILETIME, "date (2001-02-03 or 2001-02-03T04:05:06Z)"},
    {VT_DATE, "date (2001-02-03 or 2001-02-03 04:05:06)"},
    {VT_I8, "whole number"},
    {VT_CY, "currency amount"},
    {VT_CLSID, "class ID"},
};

orlo::Value ParseByFormat(uint32_t type, const std::string& text) {
    const auto* form =
        std::find_if(std::begin(kFormats), std::end(kFormats), [type](const auto& one) { return one.type == type; });
    if (form == std::end(kFormats))
        throw Failure("values of type " + orlo::TypeName(type) + " cannot be entered as text");
    uint8_t element[16];
    orlo::Value value;
    if (!orlo::ParseValueText(text, type, element) ||
        !orlo::DecodeValue(type, element, type == VT_CLSID ? 16 : 8, std::nullopt, value))
        ThrowNotAValue(text, form->kind);
    return value;
}

} // namespace

orlo::Value ParseValue(uint32_t type, const std::string& text) {
    orlo::Value value;
    value.type = type;
    switch (type) {
    case VT_LPSTR:
    case VT_LPWSTR:
    case VT_BSTR:
        value.data = text;
        return value;
    case VT_I2:
        value.data = int64_t{ParseInteger<int16_t>(text, "16-bit integer")};
        return value;
    case VT_I4:
    case VT_INT:
        value.data = int64_t{ParseInteger<int32_t>(text, "whole number")};
        return value;
    case VT_UI2:
        value.data = uint64_t{ParseInteger<uint16_t>(text, "non-negative 16-bit integer")};
        return value;
    case VT_UI4:
    case VT_UINT:
        value.data = uint64_t{ParseInteger<uint32_t>(text, "non-negative integer")};
        return value;
    case VT_R4:
    case VT_R8:
        value.data = Real(text);
        return value;
    case VT_BOOL:
        value.data = Truth(text);
        return value;
    default:
        if (type != VT_FILETIME || !orlo::IsSameName(text, "now")) return ParseByFormat(type, text);
        value.data = Now();
        return value;
    }
}

orlo::Value ParseSpan(const std::string& text) {
    constexpr const char* kKind = "duration (h:mm or h:mm:ss)";
    std::array<uint64_t, 3> parts = {};
    size_t count = 0, begin = 0;
    while (begin <= text.size()) {
        if (count == parts.size()) ThrowNotAValue(text, kKind);
        const size_t end = std::min(text.find(':', begin), text.size());
        parts[count++] = ParseInteger<uint32_t>(text.substr(begin, end - begin), kKind);
        begin = end + 1;
    }
    if (count < 2 || parts[1] > 59 || parts[2] > 59) ThrowNotAValue(text, kKind);
    orlo::Value value;
    value.type = VT_FILETIME;
    value.data = ((parts[0] * 60 + parts[1]) * 60 + parts[2]) * 10000000;
    return value;
}

orlo::Value ParseTyped(std::string_view typed) {
    const size_t colon = typed.find(':');
    if (colon == std::string_view::npos)
        throw Failure("'" + std::string(typed) + "' has no type; use for example text:" + std::string(typed));
    const std::string_view word = typed.substr(0, colon);
    for (const TypeWord& known : kTypeWords)
        if (orlo::IsSameName(known.word, word)) return ParseValue(known.type, std::string(typed.substr(colon + 1)));
    throw Failure("unknown type '" + std::string(word) + "'; the types are " + TypeNames());
}

std::string TypeNames() {
    std::string names;
    for (const TypeWord& known : kTypeWords)
        names += (names.empty() ? "" : ", ") + std::string(known.word);
    return names;
}

} // namespace suminfo
