// Finds the pages of a property sheet and activates them as a user does.
#pragma once

#include <afxdlgs.h>

#include <string>
#include <vector>

#include "demo/automation/user_input.h"

// Returns the sheet object of a window. Throws std::runtime_error if the window is not a sheet.
CPropertySheet& SheetOf(HWND window);
HWND ActivePageOf(HWND sheet);
// Returns the titles of the pages in order.
std::vector<std::string> PageTitles(HWND sheet);
// Clicks the tab of a page. Returns false if the active page could not be left.
bool ClickTab(UserInput& user, HWND sheet, int page);
