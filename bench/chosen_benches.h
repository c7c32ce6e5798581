// Runs the benchmarks named on the command line or, without names, all.
#pragma once

#include <algorithm>
#include <cstddef>
#include <string_view>

struct Bench {
    std::string_view name;
    void (*run)();
};

template <size_t count>
void RunChosen(const Bench (&benches)[count], int argc, char** argv) {
    for (const Bench& bench : benches)
        if (argc < 2 || std::find(argv + 1, argv + argc, bench.name) != argv + argc) bench.run();
}
