// Checks a database in child processes, one after the other: a check that crashes or does not return ends its process,
// and the next process continues after it.
#pragma once

#include <string>

struct Inspected {
    size_t missing = 0;                     // functions that are not exported
    size_t kept = 0, broken = 0, stubs = 0; // requirements
    std::string error;                      // why nothing could be checked, or empty
};

// Prints a line for each missing function and for each requirement.
Inspected InspectInProcesses(const std::wstring& database, const std::wstring& drawingFile);
