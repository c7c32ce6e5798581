// One edit for each page of the library's sheet, made with the keyboard and the mouse.
#pragma once

#include <string>

#include "demo/automation/user_input.h"

struct PageEdit {
    const char* title; // of the page's tab
    void (*edit)(UserInput&, HWND page);
};

// Returns null for a page that is not the library's.
const PageEdit* FindPageEdit(const std::string& title);
