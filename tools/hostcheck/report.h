// Checks a database in child processes, one after the other: a check that crashes or does not return ends its process,
// and the next process continues after it.
#pragma once

#include <string>

struct Inspected {
    size_t passed = 0, failed = 0;
    std::string error; // why nothing could be checked, or empty
};

// Prints a line for each requirement.
Inspected InspectInProcesses(const std::wstring& database, const std::wstring& drawingFile);
