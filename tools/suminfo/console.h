// What suminfo prints: UTF-8 in a file or a pipe, the console's own characters on a console.
#pragma once

#include <cstdio>
#include <string>

namespace suminfo {

// Before anything is printed: lines end in LF, and go out as they are printed.
void PrepareOutput();
// On stdout or stderr, at once.
void Print(FILE* stream, const std::string& utf8);

} // namespace suminfo
