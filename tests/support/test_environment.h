// The environment of a test program: the screen resolution and the color scheme, both options of its main function.
#pragma once

#include <string>
#include <vector>

struct TestEnvironment {
    int dpi = 0;              // --dpi=144; 0 for the system's resolution
    bool blackScheme = false; // --scheme=black: light text on black, as in high contrast
    std::string started;      // --started=EVENT: set once the program has read the system's settings

    explicit TestEnvironment(const std::vector<std::string>& arguments);
};

// Runs this program again at that resolution, with all arguments but --dpi. Returns its exit code.
int RunAgainAt(int dpi, const std::vector<std::string>& arguments);

// Sets the event with that name, if any.
void ReportStarted(const std::string& event);
