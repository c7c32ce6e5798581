// What a test program can be run in: another resolution of the screen, another color scheme. Both are options of its
// main.
#pragma once

#include <string>
#include <vector>

struct TestEnvironment {
    int dpi = 0;              // --dpi=144; 0: that of the system
    bool blackScheme = false; // --scheme=black: light text on black, as high contrast has it
    std::string started;      // --started=EVENT: to be set once the program has read the system's settings

    explicit TestEnvironment(const std::vector<std::string>& arguments);
};

// Runs this program again at that resolution, with the arguments other than --dpi. Returns its exit code.
int RunAgainAt(int dpi, const std::vector<std::string>& arguments);

// Sets the event with that name, if any.
void ReportStarted(const std::string& event);
