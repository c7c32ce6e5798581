// A host as its user meets it: a program of its own beside the test program, whose sheet is driven by messages.
#pragma once

#include <gtest/gtest.h>
#include <windows.h>

#include <string>

class HostProcess : public ::testing::Test {
protected:
    ~HostProcess() override;

    // command: the name of the program, in the folder of the test program or below it, and its arguments.
    void Start(const std::string& command);
    DWORD ExitCode();
    // The sheet, and a visible control in it. Null if the program ends before, or never shows it.
    HWND Sheet();
    HWND Visible(HWND sheet, int id);
    // Presses a key in the row of tabs.
    void PressInTabs(HWND sheet, WPARAM key);

private:
    template <class Find>
    HWND Wait(Find find);

    PROCESS_INFORMATION m_process = {};
};

LRESULT Ask(HWND control, UINT message);
