// Numbers of things, as the user reads them.
#pragma once

#include <string>

// "1 graphic", "3 graphics".
inline std::string Counted(int count, const char* one) {
    return std::to_string(count) + " " + one + (count == 1 ? "" : "s");
}
