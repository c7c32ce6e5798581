// bench_drawing [NAME...]: measures large drawings. Without a name: all.

#include <afxwin.h>

#include <cstring>

#include "bench/drawing/drawing_bench.h"

namespace {

struct Bench {
    const char* name;
    void (*run)();
};

constexpr Bench kBenches[] = {{"drawing", BenchSaving}, {"million", BenchMillion}};

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
