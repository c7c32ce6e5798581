// The whole inspection: processes that check, one after the other, since a promise that a database breaks by a crash or by
// never coming back takes its process along.
#pragma once

#include <string>

struct Inspected {
    size_t kept = 0, broken = 0;
    std::string failure; // why nothing could be checked; empty else
};

// Prints a line for each promise.
Inspected InspectInProcesses(const std::wstring& database, const std::wstring& drawingFile);
