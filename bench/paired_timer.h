// Compares the times of two functions, run alternately many times: the median of the ratios is stable even if the speed
// of the machine varies. Prints "name value unit" lines.
#pragma once

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <string>
#include <vector>

// Returns the seconds that work takes.
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
    double ratio;    // of the product to the baseline
    double seconds;  // of the product
    double baseline; // of the baseline
};

// Runs both once to warm up, then alternately.
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

// Prints the growth of both with ten times the amount of data: if both grow alike, the processor's caches are the
// cause.
inline void PrintGrowth(const std::string& name, const Pair& small, const Pair& large) {
    Print((name + "_growth").c_str(), large.seconds / small.seconds, "x_for_10n");
    Print((name + "_baseline_growth").c_str(), large.baseline / small.baseline, "x_for_10n");
}
