// dxflist.exe: where it starts, and what its command line means.

#include <CLI/CLI.hpp>

#include <algorithm>
#include <cstdio>
#include <fcntl.h>
#include <filesystem>
#include <io.h>
#include <iostream>

#include "tools/dxflist/list_drawings.h"

namespace {

constexpr int kWrongUsage = 2;

} // namespace

int wmain(int count, wchar_t** words) {
    ::_setmode(::_fileno(stdout), _O_BINARY);
    CLI::App usage{"Prints what DXF drawings hold, as JSON.", "dxflist"};
    std::vector<std::string> files;
    usage.add_option("files", files, "drawings")->required();
    try {
        std::vector<std::string> arguments; // in the order in which the parser takes them
        for (int i = count - 1; i > 0; --i)
            arguments.push_back(std::filesystem::path(words[i]).u8string());
        usage.parse(arguments);
    } catch (const CLI::ParseError& error) {
        return usage.exit(error) ? kWrongUsage : 0;
    }
    return ListDrawings(files, std::cout) ? 0 : 1;
}
