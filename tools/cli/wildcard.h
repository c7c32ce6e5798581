// Wildcards in names: * stands for any characters, ? for one.
#pragma once

#include <string_view>

namespace cli {

inline bool HasWildcard(std::string_view pattern) {
    return pattern.find_first_of("*?") != std::string_view::npos;
}

// Returns true if the pattern stands for the whole text. Characters are compared by `isSame`; a ? stands for one unit.
// Takes time in proportion to the product of the lengths at most.
template <class Char, class IsSame>
bool MatchesWildcard(std::basic_string_view<Char> pattern, std::basic_string_view<Char> text, IsSame isSame) {
    constexpr size_t kNone = std::basic_string_view<Char>::npos;
    size_t at = 0, star = kNone, afterStar = 0;
    for (size_t i = 0; i < text.size();) {
        if (at < pattern.size() && pattern[at] == '*') {
            star = at++;
            afterStar = i;
        } else if (at < pattern.size() && (pattern[at] == '?' || isSame(pattern[at], text[i]))) {
            ++at;
            ++i;
        } else if (star != kNone) { // the star takes one character more
            at = star + 1;
            i = ++afterStar;
        } else {
            return false;
        }
    }
    while (at < pattern.size() && pattern[at] == '*')
        ++at;
    return at == pattern.size();
}

} // namespace cli
