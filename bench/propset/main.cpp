// bench_propset [NAME...]: measures property sets on this machine: real streams against libgsf and against a copy of
// their bytes, large sets for their growth, allocations for each value, suminfo against gsf. Without a name: all.

#include <cstring>

#include "bench/propset/propset_bench.h"

namespace {

struct Bench {
    const char* name;
    void (*run)();
};

constexpr Bench kBenches[] = {{"streams", BenchStreams},
                              {"growth", BenchGrowth},
                              {"allocations", BenchAllocations},
                              {"programs", BenchPrograms}};

bool Wanted(const char* name, int argc, char** argv) {
    for (int i = 1; i < argc; ++i)
        if (std::strcmp(argv[i], name) == 0) return true;
    return argc < 2;
}

} // namespace

int main(int argc, char** argv) {
    for (const Bench& bench : kBenches)
        if (Wanted(bench.name, argc, argv)) bench.run();
}
