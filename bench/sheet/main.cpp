// bench_sheet [NAME...]: measures the sheet against the system's property sheet and against plain host calls. Without a
// name: all.

#include <afxwin.h>

#include "bench/chosen_benches.h"
#include "bench/sheet/sheet_bench.h"

namespace {

constexpr Bench kBenches[] = {{"merge", BenchMerge}, {"insert", BenchInsert},   {"open", BenchOpen},
                              {"pages", BenchPages}, {"preview", BenchPreview}, {"fill", BenchFill},
                              {"c", BenchC},         {"fields", BenchFields}};

} // namespace

int main(int argc, char** argv) {
    CWinApp application("bench");
    RunChosen(kBenches, argc, argv);
}
