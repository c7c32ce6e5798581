// Runs the checks in a child process and reports each result to the parent process, as lines of text:
//
//   missing NAME              a function of the contract is not exported
//   note TEXT                 there is no current drawing, and why
//   start 12                  check 12 starts
//   kept 12
//   broken 12 found 3 entries
//   stub 12 NAME              the check is not possible because that function is a stub
//   error TEXT                nothing can be checked
//   end
#pragma once

#include <windows.h>

#include <string>

// Runs the checks from number `first` on and writes the lines to `report`; missing functions and notes are reported
// with the first check. If the database crashes, the process ends with the code of the exception.
void Inspect(const std::wstring& database, const std::wstring& drawingFile, size_t first, HANDLE report);
