// Prints on a console of Windows, which takes 16-bit text.
#pragma once

#include <cstdio>
#include <string_view>

namespace cli {

// Returns false, and prints nothing, if the stream is not such a console. Files, pipes and other systems' terminals
// take UTF-8.
bool PrintOnConsole(FILE* stream, std::string_view utf8);

} // namespace cli
