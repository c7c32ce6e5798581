// Finds code pages by their names in drawings.

#include "drawcore/src/dxf/code_page.h"

#include <charconv>

#include "codepages/conversion.h"
#include "drawcore/src/dxf/fold_name.h"

namespace dxf {

namespace {

struct NamedPage {
    std::string_view name;
    uint16_t number;
};
// Names without a number; ANSI_nnnn and DOSnnn are parsed.
constexpr NamedPage kNamedPages[] = {
    {"ascii", 1252},      {"iso8859-1", 28591}, {"iso8859-2", 28592}, {"iso8859-5", 28595},
    {"iso8859-7", 28597}, {"gb2312", 936},      {"big5", 950},        {"ksc5601", 949},
    {"johab", 1361},      {"mac-roman", 10000}, {"utf-8", 65001},     {"utf8", 65001},
};

// Parses ANSI_nnnn and DOSnnn. Small numbers, which are code pages of the system, are not used in drawings.
uint16_t ParsedNumber(std::string_view name) {
    constexpr uint16_t kSmallest = 37;
    const size_t digits = name.find_first_of("0123456789");
    uint16_t number = 0;
    if (digits != name.npos && (name.substr(0, 3) == "dos" || name.substr(0, 4) == "ansi"))
        std::from_chars(name.data() + digits, name.data() + name.size(), number);
    return number >= kSmallest ? number : codepages::kWesternEuropean;
}

} // namespace

uint16_t CodePageNumber(std::string_view name) {
    const std::string folded = FoldName(name);
    for (const NamedPage& page : kNamedPages)
        if (page.name == folded) return page.number;
    const uint16_t number = ParsedNumber(folded);
    return codepages::ToUtf16("a", number, codepages::Invalid::Replace) ? number : codepages::kWesternEuropean;
}

} // namespace dxf
