// Runs the checks in a child process and reports each result to the parent process, as lines of text:
//
//   start 12                  check 12 starts
//   passed 12
//   failed 12 found 3 entries
//   error TEXT                nothing can be checked: the database cannot be loaded or has no drawing
//   end
#pragma once

#include <windows.h>

#include <string>

// Runs the checks from number `first` on and writes the lines to `report`. If the database crashes, the process ends
// with the code of the exception.
void Inspect(const std::wstring& database, const std::wstring& drawingFile, size_t first, HANDLE report);
