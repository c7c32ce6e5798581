// The report of what the tour does and finds: lines of standard output, there as soon as they are written.
#pragma once

#include <cstdio>
#include <string>

inline void Report(const std::string& line) {
    std::printf("%s\n", line.c_str());
    std::fflush(stdout);
}
