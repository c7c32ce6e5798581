// The pages of a property sheet as a user reaches them.
#pragma once

#include <afxdlgs.h>

#include <string>
#include <vector>

#include "demo/automation/user_input.h"

// The sheet that a window is. Throws std::runtime_error if it is not one.
CPropertySheet& SheetOf(HWND window);
HWND ActivePageOf(HWND sheet);
// Titles of the pages, in their order.
std::vector<std::string> PageTitles(HWND sheet);
// By a click on its tab. False: the page before it did not let itself be left.
bool ClickTab(UserInput& user, HWND sheet, int page);
