// One change on each page of the library's sheet, made as a user makes it.
#pragma once

#include <string>

#include "demo/automation/user_input.h"

struct PageEdit {
    const char* title;   // of the page's tab
    const char* changes; // name of the value that is changed by it (see DrawingState)
    void (*edit)(UserInput&, HWND page);
};

// Null for a page that is not the library's.
const PageEdit* FindPageEdit(const std::string& title);
