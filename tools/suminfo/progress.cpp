// A progress bar on one line of the terminal.

#include "progress.h"

#include "console.h"

namespace suminfo {
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

Progress::Progress(size_t total)
    : total_(total), terminal_(IsTerminal(stderr)), nextDraw_(std::chrono::steady_clock::now() + kPatience) {}

void Progress::Next(const std::string& file) {
    const size_t at = done_++;
    if (!terminal_ || total_ < 2 || std::chrono::steady_clock::now() < nextDraw_) return;
    nextDraw_ = std::chrono::steady_clock::now() + kPace;
    const size_t filled = kBar * at / total_;
    const std::string line = "[" + std::string(filled, '#') + std::string(kBar - filled, '.') + "] " +
                             std::to_string(at) + "/" + std::to_string(total_) + " " + Shortened(file);
    // Overwrites a longer previous line with spaces, since not all consoles support clearing a line.
    Print(stderr, "\r" + line + std::string(shown_ > line.size() ? shown_ - line.size() : 0, ' '));
    shown_ = line.size();
}

void Progress::MakeWayFor(FILE* stream) {
    if (IsTerminal(stream)) Hide(); // otherwise the output goes elsewhere
}

void Progress::Hide() {
    if (shown_ == 0) return;
    Print(stderr, "\r" + std::string(shown_, ' ') + "\r");
    shown_ = 0;
}

} // namespace suminfo
