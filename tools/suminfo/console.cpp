// Reads and writes the system's standard streams.

#include "console.h"

#include <cstdlib>
#ifdef _WIN32
#include <fcntl.h>
#include <io.h>
#include <windows.h>
#else
#include <cerrno>
#include <csignal>
#include <unistd.h>
#endif

#include "exit_codes.h"
#include "text.h"
#include "tools/cli/console.h"
#include "tools/cli/printable.h"

namespace suminfo {
namespace {

#ifdef _WIN32

bool IsPipeClosed() {
    const DWORD error = ::GetLastError();
    return error == ERROR_BROKEN_PIPE || error == ERROR_NO_DATA || error == ERROR_PIPE_NOT_CONNECTED;
}

#else

bool IsPipeClosed() {
    return errno == EPIPE;
}

#endif

} // namespace

void PrepareStreams() {
#ifdef _WIN32
    for (FILE* stream : {stdin, stdout, stderr})
        ::_setmode(::_fileno(stream), _O_BINARY);
#else
    std::signal(SIGPIPE, SIG_IGN); // a closed pipe is detected when something is written
#endif
}

void Print(FILE* stream, const std::string& utf8) {
    const std::string text = cli::Printable(utf8);
    if (cli::PrintOnConsole(stream, text)) return;
    const bool isWritten = std::fwrite(text.data(), 1, text.size(), stream) == text.size() && std::fflush(stream) == 0;
    if (isWritten || stream != stdout) return;
    // If the reader has closed the pipe, the program ends silently; other errors are reported.
    if (!IsPipeClosed()) Print(stderr, "suminfo: cannot write the output\n");
    std::exit(kFailed);
}

bool IsTerminal(FILE* stream) {
#ifdef _WIN32
    return ::_isatty(::_fileno(stream)) != 0;
#else
    return ::isatty(::fileno(stream)) != 0;
#endif
}

} // namespace suminfo
