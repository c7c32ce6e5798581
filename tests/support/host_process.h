// A host in its own process, whose sheet is driven by messages.
#pragma once

#include <gtest/gtest.h>
#include <windows.h>

#include <string>

class HostProcess : public ::testing::Test {
protected:
    ~HostProcess() override;

    // command: the name of a program in or below the folder of the test program, and its arguments.
    void Start(const std::string& command);
    DWORD ExitCode();
    // Waits for the end of the program and returns its standard output, without carriage returns.
    std::string Output();
    // Returns the sheet, with a visible control. Returns null if the program ends earlier or never shows it.
    HWND Sheet();
    HWND Visible(HWND sheet, int id);
    // Sends a key to the tab row.
    void PressInTabs(HWND sheet, WPARAM key);

private:
    template <class Find>
    HWND Wait(Find find);

    PROCESS_INFORMATION m_process = {};
    HANDLE m_output = nullptr; // a pipe that the program writes to
};

LRESULT Query(HWND control, UINT message);
