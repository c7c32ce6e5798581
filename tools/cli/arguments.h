// Expands the arguments of a command line before they are parsed.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace cli {

// Replaces each "@FILE" by the lines of that file, and "@-" by those of standard input, for more names than fit on a
// command line. If the contents include a NUL, NULs end the arguments instead of line ends. Throws files::FileError if
// a file cannot be read.
std::vector<std::string> WithListedArguments(const std::vector<std::string>& arguments);

// Returns the text without the byte order mark that editors on Windows add.
std::string_view WithoutMark(std::string_view utf8);

// Replaces names with wildcards by the matching files, sorted by name; a name without a match remains. Only on Windows,
// where the shell does not expand wildcards; elsewhere it returns the names unchanged.
std::vector<std::string> WithoutWildcards(const std::vector<std::string>& names);

} // namespace cli
