// The parsed command line: the command and its files. Parsing prints help and errors.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "commands.h"

namespace suminfo {

enum class Command { show, get, check, set, remove, thumbnail, rc, copy };

struct CommandLine {
    Command command;
    std::vector<std::string> files; // to process, one after the other
    bool recursive = false;
    bool bare = false;
    ReportForm form = ReportForm::table;              // show
    std::vector<Assignment> fields;                   // set
    std::vector<CustomValue> custom;                  // set
    std::vector<std::string> fieldNames, customNames; // get, remove
    std::string source;                               // copy: the document with the summary
    std::string output; // thumbnail, rc; set, remove, copy: empty to change the files themselves
    std::optional<Extent> size;
    bool original = false; // thumbnail
};

// The parsed command line, or the exit code if help or an error was printed.
struct Parsed {
    std::optional<CommandLine> line;
    int exitCode = 0;
};
Parsed ParseCommandLine(const std::vector<std::string>& arguments);

} // namespace suminfo
