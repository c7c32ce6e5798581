// One line that is drawn over and over.

#include "progress.h"

#include <cstdio>
#include <io.h>

namespace suminfo {
namespace {

constexpr auto kPatience = std::chrono::milliseconds(500); // before the bar comes up
constexpr auto kPace = std::chrono::milliseconds(100);     // between two drawings of it
constexpr size_t kBar = 24;
constexpr size_t kName = 40;

std::string Shortened(const std::string& file) {
    const size_t slash = file.find_last_of("/\\");
    const std::string name = slash == std::string::npos ? file : file.substr(slash + 1);
    return name.size() <= kName ? name : name.substr(0, kName - 3) + "...";
}

} // namespace

Progress::Progress(size_t total)
    : total_(total), terminal_(::_isatty(::_fileno(stderr)) != 0),
      nextDraw_(std::chrono::steady_clock::now() + kPatience) {}

void Progress::Next(const std::string& file) {
    const size_t at = done_++;
    if (!terminal_ || total_ < 2 || std::chrono::steady_clock::now() < nextDraw_) return;
    nextDraw_ = std::chrono::steady_clock::now() + kPace;
    const size_t filled = kBar * at / total_;
    const std::string bar = std::string(filled, '#') + std::string(kBar - filled, '.');
    std::fprintf(stderr, "\r\x1B[K[%s] %u/%u %s", bar.c_str(), static_cast<unsigned>(at),
                 static_cast<unsigned>(total_), Shortened(file).c_str());
    std::fflush(stderr);
    shown_ = true;
}

void Progress::Hide() {
    if (!shown_) return;
    std::fprintf(stderr, "\r\x1B[K");
    std::fflush(stderr);
    shown_ = false;
}

} // namespace suminfo
