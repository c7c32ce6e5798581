// bench_propset [NAME...]: measures property sets on this machine: real streams against libgsf and against a copy of
// their bytes, large sets for their growth, allocations for each value, suminfo against gsf. Without a name: all.

#include "bench/chosen_benches.h"
#include "bench/propset/propset_bench.h"

namespace {

constexpr Bench kBenches[] = {
    {"streams", BenchStreams}, {"growth", BenchGrowth}, {"allocations", BenchAllocations}, {"programs", BenchPrograms}};

} // namespace

int main(int argc, char** argv) {
    RunChosen(kBenches, argc, argv);
}
