// The options that every program has, and what is generated from the table of its commands and options.
#pragma once

#include <CLI/CLI.hpp>

#include <map>
#include <string>
#include <vector>

namespace cli {

// Words that bash completes for a command besides its options.
using CompletedWords = std::map<std::string, std::vector<std::string>>;

// Adds --version, --man and --completion. Called before commands are added, which inherit settings.
void AddCommonOptions(CLI::App& app, const std::string& version, const CompletedWords& words = {});

// Parses the command line. Returns true if there is something to do. Otherwise `output` has been asked for (help, man
// page), or `error` says what is wrong, with the program's name in front.
struct ParseResult {
    bool isParsed = false;
    std::string output, error;
};
ParseResult Parse(CLI::App& app, std::vector<std::string> arguments);

} // namespace cli
