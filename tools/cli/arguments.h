// Arguments of a command line before they are parsed.
#pragma once

#include <string>
#include <vector>

namespace cli {

// Replaces each "@FILE" by the lines of that file, and "@-" by those of standard input: more names than a command line
// holds. If there is a NUL among them, NULs end the arguments instead. Throws files::FileError if a file cannot be
// read.
std::vector<std::string> WithListedArguments(const std::vector<std::string>& arguments);

// Replaces names with wildcards by the files that they stand for, in the order of their names; a name that stands for
// none stays. For Windows, where the shell leaves them to the program; elsewhere all names stay.
std::vector<std::string> WithoutWildcards(const std::vector<std::string>& names);

} // namespace cli
