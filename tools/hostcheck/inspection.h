// One process's share of an inspection: checks promise after promise and tells the process that started it, line by line.
//
//   drawing            the database is loaded and has a drawing
//   start 12           promise 12 is being checked
//   kept 12
//   broken 12 found 3 entries
//   failed TEXT        there is nothing to check: no database, no drawing
//   end
#pragma once

#include <windows.h>

#include <string>

// Checks the promises from that one on. A crash of the database ends the process with the exception's code.
void Inspect(const std::wstring& database, const std::wstring& drawingFile, size_t first, HANDLE report);
