// A progress bar on the terminal while many files are processed. Shows nothing if stderr is not a terminal.
#pragma once

#include <chrono>
#include <cstddef>
#include <cstdio>
#include <string>

namespace suminfo {

class Progress {
public:
    explicit Progress(size_t total);
    ~Progress() { Hide(); }
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;

    // Must be called before processing the next file. The bar appears if the work takes longer than a moment.
    void Next(const std::string& file);
    // Must be called before anything else is printed on that stream.
    void MakeWayFor(FILE* stream);

private:
    void Hide();

    size_t total_;
    size_t done_ = 0;
    bool terminal_;
    size_t shown_ = 0; // length in bytes of the line on the terminal
    std::chrono::steady_clock::time_point nextDraw_;
};

} // namespace suminfo
