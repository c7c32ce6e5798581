// One change on each page of the library's sheet, made as a user makes it.
#pragma once

#include <afxdlgs.h>

#include <string>
#include <vector>

#include "demo/tour/user_input.h"

struct PageEdit {
    const char* title;   // of the page's tab
    const char* changes; // name of the value that is another one behind it (see DrawingState)
    void (*edit)(UserInput&, HWND page);
};

// Null for a page that is not the library's.
const PageEdit* FindPageEdit(const std::string& title);

// The sheet that a window is. Throws std::runtime_error if it is none.
CPropertySheet& SheetOf(HWND window);
HWND ActivePageOf(HWND sheet);
// Titles of the pages, in their order.
std::vector<std::string> PageTitles(HWND sheet);
// By a click on its tab. False: the page before it did not let itself be left.
bool ClickTab(UserInput& user, HWND sheet, int page);
