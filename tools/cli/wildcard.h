// Matches wildcards in names: * for any characters, ? for one.
#pragma once

#include <string_view>

namespace cli {

inline bool HasWildcard(std::string_view pattern) {
    return pattern.find_first_of("*?") != std::string_view::npos;
}

// Returns true if the pattern matches the whole text. Characters are compared by `isSame`; ? matches one unit. The time
// is at most proportional to the product of the lengths.
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
        } else if (star != kNone) { // extend the match of the star by one character
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
