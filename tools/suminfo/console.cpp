// A console gets whole texts in 16-bit characters: the run-time would hand it UTF-8 byte by byte, and tear its characters.

#include "console.h"

#include <algorithm>
#include <fcntl.h>
#include <io.h>
#include <windows.h>

#include "text.h"

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

} // namespace

void PrepareOutput() {
    ::_setmode(::_fileno(stdout), _O_BINARY);
    ::_setmode(::_fileno(stderr), _O_BINARY);
}

void Print(FILE* stream, const std::string& utf8) {
    const auto handle = reinterpret_cast<HANDLE>(::_get_osfhandle(::_fileno(stream)));
    DWORD mode;
    if (::GetConsoleMode(handle, &mode)) return WriteToConsole(handle, ToWide(utf8));
    std::fwrite(utf8.data(), 1, utf8.size(), stream);
    std::fflush(stream);
}

} // namespace suminfo
