// A system message box with custom button texts.
#pragma once

#include <windows.h>

#include <vector>

// The text of the button with that identifier (IDYES, IDNO, ...).
struct NamedButton {
    int id;
    const char* text;
};

// Same as MessageBoxA, with other button texts.
int MessageBoxWithButtons(HWND owner, const char* text, const char* caption, UINT type,
                          const std::vector<NamedButton>& buttons);
