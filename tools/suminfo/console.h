// What suminfo prints: UTF-8 in a file or a pipe, the console's own characters on a console.
#pragma once

#include <cstdio>
#include <string>

namespace suminfo {

// Before anything is printed or read: bytes go in and out as they are, lines end in LF.
void PrepareStreams();
// On stdout or stderr, at once, with control characters by their numbers. When nobody reads stdout any longer, or it
// can't be written, the program ends.
void Print(FILE* stream, const std::string& utf8);
bool IsTerminal(FILE* stream);

} // namespace suminfo
