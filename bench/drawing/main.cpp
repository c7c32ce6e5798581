// bench_drawing [NAME...]: measures large drawings. Without a name: all.

#include <afxwin.h>

#include "bench/chosen_benches.h"
#include "bench/drawing/drawing_bench.h"

namespace {

constexpr Bench kBenches[] = {{"drawing", BenchSaving}, {"layers", BenchLayers}, {"million", BenchMillion}};

} // namespace

int main(int argc, char** argv) {
    CWinApp application("bench");
    RunChosen(kBenches, argc, argv);
}
