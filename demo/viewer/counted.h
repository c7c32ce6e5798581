// Formats a count with its noun.
#pragma once

#include <string>

// Returns "1 graphic" or "3 graphics".
inline std::string Counted(int count, const char* one) {
    return std::to_string(count) + " " + one + (count == 1 ? "" : "s");
}
