// Options shared by all programs, and texts generated from the table of commands and options.
#pragma once

#include <CLI/CLI.hpp>

#include <map>
#include <string>
#include <vector>

namespace cli {

// Words that bash completes for a command in addition to its options.
using CompletedWords = std::map<std::string, std::vector<std::string>>;

// Adds --version, --man and --completion. Must be called before commands are added, which inherit settings.
void AddCommonOptions(CLI::App& app, const std::string& version, const CompletedWords& words = {});

// A check for options: rejects an empty value, which usually comes from a variable of a script that is not set.
std::string NotEmpty(const std::string& value);

// The result of parsing a command line. If isParsed is false, `output` is the text to print (help, manual page), or
// `error` is the error message, preceded by the program's name.
struct ParseResult {
    bool isParsed = false;
    std::string output, error;
};
ParseResult Parse(CLI::App& app, std::vector<std::string> arguments);

} // namespace cli
