// Prints on a console of Windows.

#include "tools/cli/console.h"

#ifdef _WIN32
#include <algorithm>
#include <io.h>
#include <string>
#include <windows.h>

#include "orlo/win/encoded_text.h"

namespace cli {

// The runtime would pass UTF-8 byte by byte, in the code page of the console.
bool PrintOnConsole(FILE* stream, std::string_view utf8) {
    const auto console = reinterpret_cast<HANDLE>(::_get_osfhandle(::_fileno(stream)));
    DWORD mode;
    if (!::GetConsoleMode(console, &mode)) return false;
    const std::wstring wide = orlo::Widen(std::string(utf8), CP_UTF8);
    constexpr size_t kChunkSize = 8192; // consoles reject very long ones
    for (size_t at = 0; at < wide.size(); at += kChunkSize) {
        const auto size = static_cast<DWORD>(std::min(wide.size() - at, kChunkSize));
        DWORD written = 0;
        if (!::WriteConsoleW(console, wide.data() + at, size, &written, nullptr)) break;
    }
    return true;
}

} // namespace cli

#else

bool cli::PrintOnConsole(FILE*, std::string_view) {
    return false;
}

#endif
