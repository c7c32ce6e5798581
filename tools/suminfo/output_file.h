// Writes the output files of commands: pictures and scripts.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "orlo/propset/inspect/value.h"

namespace suminfo {

// Replaces the file, or prints the bytes if the name is kStandardStream. Throws files::FileError.
void WriteOutput(const std::string& file, std::string_view bytes);
// Prints a warning on stderr if the name's extension does not match the contents ("png").
void WarnOfEnding(const std::string& file, const std::string& ending, const std::string& contents);

} // namespace suminfo
