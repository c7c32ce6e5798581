// Reads and writes the system's standard streams.

#include "console.h"

#include <cstdlib>
#ifdef _WIN32
#include <algorithm>
#include <fcntl.h>
#include <io.h>
#include <windows.h>

#include "orlo/win/encoded_text.h"
#else
#include <cerrno>
#include <csignal>
#include <unistd.h>
#endif

#include "exit_codes.h"
#include "text.h"
#include "tools/cli/printable.h"

namespace suminfo {
namespace {

#ifdef _WIN32

// Writes 16-bit text to a console, because the runtime would pass UTF-8 byte by byte, which splits characters.
bool PrintOnConsole(FILE* stream, const std::string& utf8) {
    const auto console = reinterpret_cast<HANDLE>(::_get_osfhandle(::_fileno(stream)));
    DWORD mode;
    if (!::GetConsoleMode(console, &mode)) return false;
    const std::wstring wide = orlo::Widen(utf8, CP_UTF8);
    constexpr size_t kPiece = 8192; // consoles reject very long ones
    for (size_t at = 0; at < wide.size(); at += kPiece) {
        const auto size = static_cast<DWORD>(std::min(wide.size() - at, kPiece));
        DWORD written = 0;
        if (!::WriteConsoleW(console, wide.data() + at, size, &written, nullptr)) break;
    }
    return true;
}

bool HasReaderGone() {
    const DWORD error = ::GetLastError();
    return error == ERROR_BROKEN_PIPE || error == ERROR_NO_DATA || error == ERROR_PIPE_NOT_CONNECTED;
}

#else

bool PrintOnConsole(FILE*, const std::string&) {
    return false; // terminals accept UTF-8 like files
}

bool HasReaderGone() {
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
    if (PrintOnConsole(stream, text)) return;
    const bool isWritten = std::fwrite(text.data(), 1, text.size(), stream) == text.size() && std::fflush(stream) == 0;
    if (isWritten || stream != stdout) return;
    // If the reader has closed the pipe, the program ends silently; other errors are reported.
    if (!HasReaderGone()) Print(stderr, "suminfo: cannot write the output\n");
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
