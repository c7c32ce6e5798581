// Prints the report of the tour on standard output, flushing each line.
#pragma once

#include <cstdio>
#include <string>

inline void Report(const std::string& line) {
    std::printf("%s\n", line.c_str());
    std::fflush(stdout);
}
