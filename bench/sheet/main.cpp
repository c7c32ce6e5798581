// bench_sheet [NAME...]: measures the sheet against the system's own and against bare host calls. Without a name: all.

#include <afxwin.h>

#include <cstdio>
#include <cstring>

#include "bench/sheet/sheet_bench.h"

namespace {

struct Bench {
    const char* name;
    void (*run)();
};

constexpr Bench kBenches[] = {{"merge", BenchMerge}, {"insert", BenchInsert},   {"open", BenchOpen},
                              {"pages", BenchPages}, {"preview", BenchPreview}, {"fill", BenchFill},
                              {"c", BenchC}};

bool Wanted(const char* name, int argc, char** argv) {
    for (int i = 1; i < argc; ++i)
        if (std::strcmp(argv[i], name) == 0) return true;
    return argc < 2;
}

} // namespace

int main(int argc, char** argv) {
    CWinApp application("bench");
    for (const Bench& bench : kBenches)
        if (Wanted(bench.name, argc, argv)) bench.run();
}
