// The entry point of demo.exe, and its command line.

#include <CLI/CLI.hpp>

#include <algorithm>
#include <cstdio>
#include <fcntl.h>
#include <io.h>
#include <memory>
#include <string>
#include <vector>

#include "demo/demo_app.h"
#include "demo/viewer/file_name.h"

#include <shellapi.h>

namespace {

constexpr int kWrongUsage = 2;

// Without the program name. The 8-bit command line cannot represent all file names.
std::vector<std::string> Arguments() {
    int count = 0;
    const std::unique_ptr<wchar_t*[], decltype(&::LocalFree)> words(::CommandLineToArgvW(::GetCommandLineW(), &count),
                                                                    ::LocalFree);
    std::vector<std::string> arguments;
    for (int i = 1; i < count; ++i)
        arguments.push_back(Utf8(words[i]));
    return arguments;
}

// A windowed program started from a console has no output by default.
void UseCallersConsole() {
    if (::GetStdHandle(STD_OUTPUT_HANDLE) == nullptr && ::AttachConsole(ATTACH_PARENT_PROCESS))
        std::freopen("CONOUT$", "w", stdout);
    ::_setmode(::_fileno(stdout), _O_BINARY);
}

} // namespace

int WINAPI WinMain(HINSTANCE instance, HINSTANCE before, char* commandLine, int show) {
    UseCallersConsole();
    CLI::App usage{"A small drawing viewer that shows Orlo's property sheets.", "demo"};
    DemoOptions options;
    usage.add_option("drawing", options.drawing, "DXF drawing to open");
    usage
        .add_option("--tour", options.tourFolder,
                    "play the scripted tour with the drawing and save screenshots in this folder")
        ->type_name("FOLDER");
    try {
        std::vector<std::string> arguments = Arguments();
        std::reverse(arguments.begin(), arguments.end()); // the order that the parser expects
        usage.parse(arguments);
    } catch (const CLI::ParseError& error) {
        return usage.exit(error) ? kWrongUsage : 0;
    }

    CDemoApp app(options);
    return AfxWinMain(instance, before, commandLine, show);
}
