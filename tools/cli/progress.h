// A progress bar on the terminal while many files, or a large one, are processed.
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

    // Must be called while a file is processed, with the completed share. The bar appears after half a second.
    void Show(const std::string& file, int permille = 0);
    // Must be called after each file.
    void Finish() { ++done_; }
    // Must be called before anything else is printed on the terminal.
    void Hide();

private:
    size_t total_;
    size_t done_ = 0;
    std::function<void(const std::string& text)> print_;
    size_t shown_ = 0; // length of the line on the terminal in bytes
    std::chrono::steady_clock::time_point nextDraw_;
};

} // namespace cli
