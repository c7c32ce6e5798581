// demo.exe: where it starts, and what its command line means.

#include <fcntl.h>
#include <io.h>
#include <iostream>
#include <string>
#include <vector>

#include <windows.h>

#include <shellapi.h>

#include "demo/list_drawings.h"

namespace {

std::string Utf8(const wchar_t* text) {
    const int size = ::WideCharToMultiByte(CP_UTF8, 0, text, -1, nullptr, 0, nullptr, nullptr);
    std::string utf8(static_cast<size_t>(size), '\0');
    ::WideCharToMultiByte(CP_UTF8, 0, text, -1, utf8.data(), size, nullptr, nullptr);
    utf8.resize(static_cast<size_t>(size) - 1); // without the NUL
    return utf8;
}

// Without the program's own name. The 8-bit command line would lose file names of other scripts.
std::vector<std::string> Arguments() {
    int count = 0;
    wchar_t** const words = ::CommandLineToArgvW(::GetCommandLineW(), &count);
    std::vector<std::string> arguments;
    for (int i = 1; i < count; ++i)
        arguments.push_back(Utf8(words[i]));
    ::LocalFree(words);
    return arguments;
}

// A windowed program that is started from a console has no output of its own.
void UseCallersConsole() {
    if (::GetStdHandle(STD_OUTPUT_HANDLE) == nullptr && ::AttachConsole(ATTACH_PARENT_PROCESS))
        std::freopen("CONOUT$", "w", stdout);
    ::_setmode(::_fileno(stdout), _O_BINARY);
}

} // namespace

int WINAPI WinMain(HINSTANCE, HINSTANCE, char*, int) {
    std::vector<std::string> arguments = Arguments();
    if (arguments.size() < 2 || arguments[0] != "--list") return 2;
    arguments.erase(arguments.begin());
    UseCallersConsole();
    return ListDrawings(arguments, std::cout) ? 0 : 1;
}
