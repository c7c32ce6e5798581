// Output of suminfo: UTF-8 to a file or a pipe, 16-bit text to a console.
#pragma once

#include <cstdio>
#include <string>

namespace suminfo {

// Must be called before any input or output: sets binary mode, with lines that end in LF.
void PrepareStreams();
// Prints to stdout or stderr without buffering, with control characters escaped. Ends the program if the reader of
// stdout has closed it or it cannot be written.
void Print(FILE* stream, const std::string& utf8);
bool IsTerminal(FILE* stream);

} // namespace suminfo
