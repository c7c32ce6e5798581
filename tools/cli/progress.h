// A bar on the terminal while many files, or a large one, are worked on.
#pragma once

#include <chrono>
#include <cstddef>
#include <functional>
#include <string>

namespace cli {

class Progress {
public:
    // `print` writes on the terminal's stderr; null: nothing is shown.
    Progress(size_t total, std::function<void(const std::string& text)> print);
    ~Progress() { Hide(); }
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;

    // Called while a file is worked on, with the part that is done; the bar appears when the work takes longer than a
    // moment.
    void Show(const std::string& file, int permille = 0);
    // Called after each file.
    void Finish() { ++done_; }
    // Called before anything else is printed on the terminal.
    void Hide();

private:
    size_t total_;
    size_t done_ = 0;
    std::function<void(const std::string& text)> print_;
    size_t shown_ = 0; // bytes of the line on the terminal
    std::chrono::steady_clock::time_point nextDraw_;
};

} // namespace cli
