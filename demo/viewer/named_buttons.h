// A system message box whose buttons say what they do.
#pragma once

#include <windows.h>

#include <vector>

// The text of the button with that identifier (IDYES, IDNO, ...).
struct NamedButton {
    int id;
    const char* text;
};

// As MessageBoxA, with other texts of the buttons.
int MessageBoxWithButtons(HWND owner, const char* text, const char* caption, UINT type,
                          const std::vector<NamedButton>& buttons);
