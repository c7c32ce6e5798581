// bench_propset [NAME...]: measures property sets natively: real streams against libgsf and against copying their
// bytes, growth with the size of the set, allocations per value, suminfo against gsf; dxfprops. Without a name: all.

#include "bench/chosen_benches.h"
#include "bench/propset/propset_bench.h"

namespace {

constexpr Bench kBenches[] = {
    {"streams", BenchStreams}, {"growth", BenchGrowth}, {"allocations", BenchAllocations}, {"programs", BenchPrograms}};

} // namespace

int main(int argc, char** argv) {
    RunChosen(kBenches, argc, argv);
}
