// A console gets whole texts in 16-bit characters: the run-time would hand it UTF-8 byte by byte, and tear its characters.

#include "console.h"

#include <algorithm>
#include <cstdlib>
#include <fcntl.h>
#include <io.h>
#include <windows.h>

#include "exit_codes.h"
#include "text.h"
#include "wide_text.h"

namespace suminfo {
namespace {

void WriteToConsole(HANDLE console, std::wstring_view text) {
    constexpr size_t kPiece = 8192; // consoles refuse very long ones
    while (!text.empty()) {
        const DWORD size = static_cast<DWORD>(std::min(text.size(), kPiece));
        DWORD written = 0;
        if (!::WriteConsoleW(console, text.data(), size, &written, nullptr)) return;
        text.remove_prefix(size);
    }
}

// Whoever has read enough has closed the pipe; anything else is worth a word.
[[noreturn]] void EndWithoutReader() {
    const DWORD error = ::GetLastError();
    const bool isClosed =
        error == ERROR_BROKEN_PIPE || error == ERROR_NO_DATA || error == ERROR_PIPE_NOT_CONNECTED;
    if (!isClosed) Print(stderr, "suminfo: the output can't be written\n");
    std::exit(kFailed);
}

} // namespace

void PrepareStreams() {
    ::_setmode(::_fileno(stdin), _O_BINARY);
    ::_setmode(::_fileno(stdout), _O_BINARY);
    ::_setmode(::_fileno(stderr), _O_BINARY);
}

void Print(FILE* stream, const std::string& utf8) {
    const auto handle = reinterpret_cast<HANDLE>(::_get_osfhandle(::_fileno(stream)));
    DWORD mode;
    const std::string text = Printable(utf8);
    if (::GetConsoleMode(handle, &mode)) return WriteToConsole(handle, ToWide(text));
    const bool written =
        std::fwrite(text.data(), 1, text.size(), stream) == text.size() && std::fflush(stream) == 0;
    if (!written && stream == stdout) EndWithoutReader();
}

bool IsTerminal(FILE* stream) {
    return ::_isatty(::_fileno(stream)) != 0;
}

} // namespace suminfo
