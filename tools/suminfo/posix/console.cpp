// Terminals here take UTF-8 as files do.

#include "console.h"

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <unistd.h>

#include "exit_codes.h"
#include "text.h"

namespace suminfo {

void PrepareStreams() {
    std::signal(SIGPIPE, SIG_IGN); // a reader that goes is seen when something is written
}

void Print(FILE* stream, const std::string& utf8) {
    const std::string text = Printable(utf8);
    const bool written =
        std::fwrite(text.data(), 1, text.size(), stream) == text.size() && std::fflush(stream) == 0;
    if (written || stream != stdout) return;
    // Whoever has read enough has closed the pipe; anything else is worth a word.
    if (errno != EPIPE) Print(stderr, "suminfo: the output can't be written\n");
    std::exit(kFailed);
}

bool IsTerminal(FILE* stream) {
    return ::isatty(::fileno(stream)) != 0;
}

} // namespace suminfo
