// A bar on the terminal while many files are worked on. Without a terminal on stderr it shows nothing.
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

    // Before work on the next file; the bar appears when the work takes longer than a moment.
    void Next(const std::string& file);
    // Before anything else is printed on that stream.
    void MakeWayFor(FILE* stream);

private:
    void Hide();

    size_t total_;
    size_t done_ = 0;
    bool terminal_;
    size_t shown_ = 0; // bytes of the line on the terminal
    std::chrono::steady_clock::time_point nextDraw_;
};

} // namespace suminfo
