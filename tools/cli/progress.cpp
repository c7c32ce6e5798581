// A progress bar on one line of the terminal.

#include "tools/cli/progress.h"

namespace cli {
namespace {

constexpr auto kPatience = std::chrono::milliseconds(500); // before the bar appears
constexpr auto kPace = std::chrono::milliseconds(100);     // between two updates
constexpr size_t kBar = 24;
constexpr size_t kName = 40; // in bytes; the whole line is shorter than 80

std::string Shortened(const std::string& file) {
    const size_t slash = file.find_last_of("/\\");
    const std::string name = slash == std::string::npos ? file : file.substr(slash + 1);
    if (name.size() <= kName) return name;
    size_t cut = kName - 3;
    while ((name[cut] & 0xC0) == 0x80) // not inside a character
        --cut;
    return name.substr(0, cut) + "...";
}

} // namespace

Progress::Progress(size_t total, std::function<void(const std::string& text)> print)
    : total_(total), print_(std::move(print)), nextDraw_(std::chrono::steady_clock::now() + kPatience) {}

void Progress::Show(const std::string& file, int permille) {
    if (!print_ || total_ == 0 || std::chrono::steady_clock::now() < nextDraw_) return;
    nextDraw_ = std::chrono::steady_clock::now() + kPace;
    const size_t filled = kBar * (1000 * done_ + static_cast<size_t>(permille)) / (1000 * total_);
    const std::string line = "[" + std::string(filled, '#') + std::string(kBar - filled, '.') + "] " +
                             std::to_string(done_) + "/" + std::to_string(total_) + " " + Shortened(file);
    // Overwrites a longer line with blanks, because some consoles do not support the sequence that clears a line.
    print_("\r" + line + std::string(shown_ > line.size() ? shown_ - line.size() : 0, ' '));
    shown_ = line.size();
}

void Progress::Hide() {
    if (shown_ == 0) return;
    print_("\r" + std::string(shown_, ' ') + "\r");
    shown_ = 0;
}

} // namespace cli
