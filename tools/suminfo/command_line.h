// The parsed command line: the command and its files. Parsing prints help and errors.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "commands.h"

namespace suminfo {

enum class Command { show, check, set, remove, thumbnail, rc, copy };

struct CommandLine {
    Command command;
    std::vector<std::string> files; // show, check
    std::string file;               // the others
    bool recursive = false;
    bool bare = false;
    bool json = false;
    std::vector<Assignment> fields;                   // set
    std::vector<CustomValue> custom;                  // set
    std::vector<std::string> fieldNames, customNames; // remove
    std::string output;                               // thumbnail, rc, copy
    std::optional<Extent> size;
};

// The parsed command line, or the exit code if help or an error was printed.
struct Parsed {
    std::optional<CommandLine> line;
    int exitCode = 0;
};
Parsed ParseCommandLine(const std::vector<std::string>& arguments);

} // namespace suminfo
