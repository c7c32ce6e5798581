// Times two pieces of work against each other: in turn, many times, by the median of the ratios, since this machine's
// speed changes from moment to moment. Prints "name value unit" lines.
#pragma once

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <string>
#include <vector>

// Seconds that work takes.
template <class Work>
double Seconds(Work&& work) {
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

inline double Median(std::vector<double> values) {
    std::nth_element(values.begin(), values.begin() + values.size() / 2, values.end());
    return values[values.size() / 2];
}

struct Pair {
    double ratio;    // of ours to the baseline
    double seconds;  // of ours
    double baseline; // its seconds
};

// Runs both once to warm up, then rounds times in turn.
template <class Ours, class Baseline>
Pair Compare(int rounds, Ours&& ours, Baseline&& baseline) {
    ours();
    baseline();
    std::vector<double> ratios, seconds, baselines;
    for (int i = 0; i < rounds; ++i) {
        const double own = Seconds(ours);
        const double base = Seconds(baseline);
        ratios.push_back(own / base);
        seconds.push_back(own);
        baselines.push_back(base);
    }
    return {Median(ratios), Median(seconds), Median(baselines)};
}

inline void Print(const char* name, double value, const char* unit) {
    std::printf("%s %.3g %s\n", name, value, unit);
    std::fflush(stdout);
}

// What ten times as much costs, of ours and of the baseline: where both grow alike, the machine's caches are the cause.
inline void PrintGrowth(const std::string& name, const Pair& small, const Pair& large) {
    Print((name + "_growth").c_str(), large.seconds / small.seconds, "x_for_10n");
    Print((name + "_baseline_growth").c_str(), large.baseline / small.baseline, "x_for_10n");
}
